#pragma once

#include <string>
#include <vector>

#include "platform/registry/clsRegistry.h"

namespace quorin {

// The file types that the File Types page and the wizard offer: the classes root's subkey names
// that IsFileTypeName keeps, in the registry's order. A classes root with more names than
// GetKeyNames lists gives the file types among the names listed before its bound; the registry
// lists names in order, so those are where the "." names stand.
std::vector<std::string> KnownExtensions(const clsRegistry& registry);

}  // namespace quorin
