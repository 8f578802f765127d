#pragma once

#include <string_view>

namespace quorin {

// The file-type test of the walk: the last four characters of the name, upper-cased and
// followed by one blank, searched in filter as stored (".DOC .HTML "). So "PAGE.HTML" passes
// through "HTML " and a name without a dot can pass too; the filter format is built for this.
bool PassesFileTypeFilter(std::string_view name, std::string_view filter, bool filterIsInclude);

// Whether the first four characters of a folder name, upper-cased, are "TEMP" ("Templates" too).
bool IsTempFolderName(std::string_view name);

}  // namespace quorin
