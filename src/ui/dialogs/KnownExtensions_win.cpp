#include "ui/dialogs/KnownExtensions.h"

#include "platform/registry/TooManyKeyNamesError.h"
#include "ui/dialogs/FileTypeLists.h"

namespace quorin {

std::vector<std::string> KnownExtensions(const clsRegistry& registry) {
    try {
        return FileTypeNames(registry.GetKeyNames(HKEY_CLASSES_ROOT, ""));
    } catch (const TooManyKeyNamesError& error) {
        return FileTypeNames(error.NamesBeforeBound());
    }
}

}  // namespace quorin
