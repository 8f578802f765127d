#pragma once

#include <string>

#include "index/MatchList.h"

namespace quorin {

// Shows several matches of a typed word for the user to choose from (the Matches window).
class MatchesOpener {
  public:
    virtual ~MatchesOpener() = default;
    virtual void ShowMatches(const std::string& word, const MatchList& matches) = 0;
};

}  // namespace quorin
