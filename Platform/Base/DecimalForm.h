#pragma once

#include <string>

namespace Platform {

/// The shortest decimal digits that read back as the same double: "0.1", "785000000", "1e+16". Plain from 0.0001 up to
/// below 10^16, with an exponent outside of it; no ".0" behind whole numbers. The decimal mark is a point whatever the
/// locale of the process. `value` is finite.
[[nodiscard]] std::string shortestDecimalForm(double value);

} // namespace Platform
