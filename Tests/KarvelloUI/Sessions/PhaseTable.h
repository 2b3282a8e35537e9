#pragma once

#include <cstddef>
#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace SessionTests {

/// What a session does on every event in every state, written as a person reads it: one line a state, one cell an event.
/// A cell is two letters: the phase right after the event, and the phase when all work has come to its end.
class PhaseTable {
public:
    struct Cell {
        std::string state;
        std::string event;
        char now;
        char settled;
    };

    /// The first line names the events, each other one begins with its state.
    explicit PhaseTable(std::string_view text)
    {
        std::istringstream lines{std::string(text)};
        std::string line;
        std::vector<std::string> events;
        while (std::getline(lines, line)) {
            const auto words = wordsOf(line);
            if (events.empty()) {
                events = words;
                continue;
            }
            if (words.empty()) {
                continue;
            }
            EXPECT_EQ(words.size(), events.size() + 1) << "a cell is missing: " << line;
            for (std::size_t event = 0; event < events.size() && event + 1 < words.size(); ++event) {
                EXPECT_EQ(words[event + 1].size(), 2U) << line;
                m_cells.push_back({.state = words.front(),
                    .event = events[event],
                    .now = words[event + 1].front(),
                    .settled = words[event + 1].back()});
            }
        }
    }

    [[nodiscard]] const std::vector<Cell>& cells() const { return m_cells; }

private:
    static std::vector<std::string> wordsOf(const std::string& line)
    {
        std::istringstream text(line);
        std::vector<std::string> words;
        for (std::string word; text >> word;) {
            words.push_back(word);
        }
        return words;
    }

    std::vector<Cell> m_cells;
};

/// Takes a new `Stage` through every cell of the table: it reaches the state, meets the event, and comes to rest. It knows
/// which operations are to be found in the log then.
template <typename Stage>
void expectPhases(const PhaseTable& table)
{
    for (const auto& cell : table.cells()) {
        SCOPED_TRACE(cell.event + " in " + cell.state);
        Stage stage;
        stage.reach(cell.state);
        const char before = stage.phase();
        const auto logged = stage.loggedCount();
        stage.meet(cell.event);
        EXPECT_EQ(stage.phase(), cell.now);
        stage.comeToRest();
        EXPECT_EQ(stage.phase(), cell.settled);
        stage.expectRest();
        // A clean or restore is written down once, and one that was replaced not at all.
        const char running = cell.event == "settle" ? before : cell.now;
        EXPECT_EQ(stage.loggedCount(), logged + (Stage::writesDown(running, cell) ? 1 : 0));
    }
}

} // namespace SessionTests
