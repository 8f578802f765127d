#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "index/MatchList.h"

namespace quorin {

class clsIndex;
class SearchProgress;

// What Go does with the typed word, decided without a window.
struct GoAction {
    enum class Kind {
        None,          // an empty box
        NoMatch,       // no assigned word and no match: the window says so
        OpenAssigned,  // the user's own word: its file opens and the window hides
        OpenMatch,     // exactly one match: it opens and the window stays
        ChooseMatch,   // several matches go to the Matches window
    };
    Kind kind = Kind::None;
    std::string file;                  // the full path to open
    std::string workingFolder;         // the folder the file opens in
    std::optional<MatchList> matches;  // ChooseMatch only
};

// The user's own words come first (case-free); only then is the index searched, with `progress`
// showing the scan. The word is used exactly as typed.
GoAction DecideGo(clsIndex& index, std::string_view word, SearchProgress& progress);

}  // namespace quorin
