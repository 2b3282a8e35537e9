#include "CleanerCore/Export/ExportError.h"

namespace CleanerCore {

std::string ExportError::localizedDescription() const
{
    return std::visit([](const auto& error) { return error.localizedDescription(); }, cause);
}

} // namespace CleanerCore
