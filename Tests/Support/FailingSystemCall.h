#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace TestSupport {

/// Calls of one number: those whose argument, masked, has the value. Without a mask all of them.
struct SystemCalls {
    long number = 0;
    unsigned argument = 0;
    std::uint32_t mask = 0;
    std::uint32_t value = 0;
};

/// Those whose first argument is the descriptor.
[[nodiscard]] SystemCalls callsOn(long number, int descriptor);

/// From now on this process and its children get the error instead of the call. There is no way back: only for
/// `inChildProcess` and its like, and for what `answerSystemCalls` runs. Faults add up.
void failSystemCall(const SystemCalls& calls, int systemError);

/// A call that is about to be made.
struct PendingSystemCall {
    /// How many of the calls came before it.
    std::size_t before = 0;
    std::array<std::uint64_t, 6> arguments{};

    /// The text that an argument points to.
    [[nodiscard]] std::string text(std::size_t argument) const;
    /// What an argument points to.
    template <typename Value>
    [[nodiscard]] Value* pointer(std::size_t argument) const
    {
        return reinterpret_cast<Value*>(arguments.at(argument)); // NOLINT(performance-no-int-to-ptr)
    }
};

/// What a call returns instead of being made, an error as its negative number; nothing lets it be made.
using SystemCallAnswer = std::function<std::optional<std::int64_t>(const PendingSystemCall&)>;

/// Runs `part` in a thread of its own. Each of the calls waits until `answer` has been asked, which may change meanwhile
/// what the call will find.
void answerSystemCalls(const SystemCalls& calls, const SystemCallAnswer& answer, const std::function<void()>& part);

/// Only the call that so many came before fails.
[[nodiscard]] SystemCallAnswer failingOnce(int systemError, std::size_t before = 0);

} // namespace TestSupport
