#include "ui/main/GoCommand.h"

#include "index/clsIndex.h"
#include "platform/Path.h"

namespace quorin {

GoAction DecideGo(clsIndex& index, std::string_view word, SearchProgress& progress) {
    if (word.empty()) {
        return {};
    }
    if (const clsItem* assigned = index.Words().Item(word)) {
        const std::string folder = index.GetPath(assigned->Directory);
        // The two ways of opening have always passed the working folder differently, the
        // assigned word's with a trailing separator and the match's without; both are kept.
        return {GoAction::Kind::OpenAssigned, JoinPath(folder, assigned->Filename),
                folder + kPathSeparator, std::nullopt};
    }
    std::optional<MatchList> matches = index.FindMatch(word, &progress);
    if (!matches || matches->Count() == 0) {
        return {GoAction::Kind::NoMatch, "", "", std::nullopt};
    }
    if (matches->Count() > 1) {
        return {GoAction::Kind::ChooseMatch, "", "", std::move(matches)};
    }
    const clsItem item = matches->Item(1);
    const std::string folder = index.GetPath(item.Directory);
    return {GoAction::Kind::OpenMatch, JoinPath(folder, item.Filename), folder, std::nullopt};
}

}  // namespace quorin
