#include "app/MainMatchesOpener.h"

#include "ui/matches/frmMatches.h"

namespace quorin {

void MainMatchesOpener::ShowMatches(const std::string& word, const MatchList& matches) {
    quorin::ShowMatches(word, matches,
                        MatchesHost{index_.Get(), shell_, settings_, prompter_, addWords_, icon_});
}

}  // namespace quorin
