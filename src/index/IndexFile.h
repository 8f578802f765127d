#pragma once

#include <optional>
#include <string>

#include "index/FolderTable.h"
#include "index/IndexItems.h"

namespace quorin {

// "index.txt": line 1 the build's date ("YYYY-MM-DD HH:MM:SS"), line 2 the folder count, one
// line per folder, then two lines per record: its folder slot and its file name. Numbers are
// written with one leading blank (" 42").

// Reads the file into the table (from slot 0) and appends its records to items. Gives the date
// of line 1, or nothing when the file is unreadable or corrupt: then the folder count is zero
// and the records read before the fault stay in items.
std::optional<double> ReadIndexFile(const std::string& path, FolderTable& folders,
                                    IndexItems& items);

// The whole text of the file, ready to be saved in one step.
std::string FormatIndexFile(double lastUpdated, const FolderTable& folders,
                            const IndexItems& items);

}  // namespace quorin
