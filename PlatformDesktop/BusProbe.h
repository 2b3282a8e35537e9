#pragma once

#include <chrono>
#include <string_view>

namespace PlatformDesktop::BusProbe {

/// False if nobody answers as a bus at this address in that time: nobody is there, is silent, or talks of something else.
/// True for an address of a kind that is not looked into (D-Bus Specification, "Server Addresses"). Starts no thread.
[[nodiscard]] bool mayAnswer(std::string_view address, std::chrono::milliseconds patience);

} // namespace PlatformDesktop::BusProbe
