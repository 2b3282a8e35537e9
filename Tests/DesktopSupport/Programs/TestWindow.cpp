// test-window BEHAVIOUR [MACHINE [PROCESS]]: shows a window and tells on standard output what happens to it.
//   closes    closes when it is asked to
//   asks      asks its user whether to save: "save" on standard input closes it, "cancel" does not
//   refuses   stays whatever it is asked
//   ignorant  does not take part in being asked
//   pair      two windows; ends when both were asked
// MACHINE and PROCESS are what its windows claim; by default it tells the truth.

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <poll.h>
#include <span>
#include <string>
#include <string_view>
#include <unistd.h>
#include <vector>
#include <xcb/xcb.h>

namespace {

struct Freeing {
    void operator()(void* memory) const { std::free(memory); }
};

template <typename Value>
using Reply = std::unique_ptr<Value, Freeing>;

class Program {
public:
    Program(std::string behaviour, std::string machine, std::uint32_t process)
        : m_connection(xcb_connect(nullptr, nullptr))
        , m_behaviour(std::move(behaviour))
        , m_machine(std::move(machine))
        , m_process(process)
    {
    }
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;
    ~Program() { xcb_disconnect(m_connection); }

    int run()
    {
        if (xcb_connection_has_error(m_connection) != 0) {
            return 1;
        }
        m_root = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root;
        const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
        xcb_change_window_attributes(m_connection, m_root, XCB_CW_EVENT_MASK, &events);
        for (int window = 0; window < (m_behaviour == "pair" ? 2 : 1); ++window) {
            show();
        }
        std::array<pollfd, 2> sources{
            pollfd{xcb_get_file_descriptor(m_connection), POLLIN, 0}, pollfd{STDIN_FILENO, POLLIN, 0}};
        while (!m_isOver && xcb_connection_has_error(m_connection) == 0) {
            while (const auto event = Reply<xcb_generic_event_t>(xcb_poll_for_event(m_connection))) {
                handle(*event);
            }
            if (m_isOver || poll(sources.data(), sources.size(), -1) < 0) {
                break;
            }
            if (sources[1].revents != 0 && !listen()) {
                sources[1].fd = -1;
            }
        }
        return m_isOver ? 0 : 1;
    }

private:
    xcb_atom_t atom(std::string_view name)
    {
        const Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(m_connection,
            xcb_intern_atom(m_connection, 0, static_cast<std::uint16_t>(name.size()), name.data()), nullptr));
        return reply->atom;
    }

    void show()
    {
        const auto* const screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
        const auto window = xcb_generate_id(m_connection);
        xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, window, m_root, 0, 0, 80, 60, 0,
            XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual, 0, nullptr);
        m_windows.push_back(window);
        const auto change = [this, window](xcb_atom_t name, xcb_atom_t type, std::uint8_t format, std::size_t count,
                                const void* value) {
            xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, window, name, type, format,
                static_cast<std::uint32_t>(count), value);
        };
        if (m_behaviour != "ignorant") {
            const auto protocol = atom("WM_DELETE_WINDOW");
            change(atom("WM_PROTOCOLS"), XCB_ATOM_ATOM, 32, 1, &protocol);
        }
        change(XCB_ATOM_WM_CLIENT_MACHINE, XCB_ATOM_STRING, 8, m_machine.size(), m_machine.data());
        change(atom("_NET_WM_PID"), XCB_ATOM_CARDINAL, 32, 1, &m_process);
        xcb_map_window(m_connection, window);
        xcb_flush(m_connection);
    }

    void handle(const xcb_generic_event_t& event)
    {
        switch (event.response_type & 0x7FU) {
        case XCB_PROPERTY_NOTIFY:
            if (!m_isShown && areListed()) {
                m_isShown = true;
                say("shown " + std::to_string(getpid()));
            }
            break;
        case XCB_CLIENT_MESSAGE:
            say("asked");
            ++m_requests;
            if (m_behaviour == "asks") {
                show();
            } else if (m_behaviour == "closes" || (m_behaviour == "pair" && m_requests == 2)) {
                m_isOver = true;
            }
            break;
        default:
            break;
        }
    }

    /// By the manager.
    bool areListed()
    {
        constexpr std::uint32_t all = 1024;
        const Reply<xcb_get_property_reply_t> list(xcb_get_property_reply(m_connection,
            xcb_get_property(m_connection, 0, m_root, atom("_NET_CLIENT_LIST"), XCB_ATOM_WINDOW, 0, all), nullptr));
        const std::span listed(static_cast<const xcb_window_t*>(xcb_get_property_value(list.get())), list->value_len);
        return std::ranges::all_of(
            m_windows, [&](xcb_window_t window) { return std::ranges::find(listed, window) != listed.end(); });
    }

    bool listen()
    {
        std::string line;
        if (!std::getline(std::cin, line)) {
            return false;
        }
        m_isOver = line == "save";
        say(m_isOver ? "saved" : "stays");
        return true;
    }

    static void say(const std::string& words) { std::cout << words << std::endl; }

    xcb_connection_t* m_connection;
    std::string m_behaviour;
    std::string m_machine;
    std::uint32_t m_process;
    xcb_window_t m_root = XCB_WINDOW_NONE;
    std::vector<xcb_window_t> m_windows;
    int m_requests = 0;
    bool m_isShown = false;
    bool m_isOver = false;
};

std::string ownMachine()
{
    std::array<char, 256> name{};
    return gethostname(name.data(), name.size() - 1) == 0 ? name.data() : "";
}

} // namespace

int main(int count, char** words)
{
    const std::string behaviour = count > 1 ? words[1] : "closes";
    const std::string machine = count > 2 ? words[2] : ownMachine();
    const auto process = count > 3 ? std::stoul(words[3]) : static_cast<unsigned long>(getpid());
    return Program(behaviour, machine, static_cast<std::uint32_t>(process)).run();
}
