#pragma once

#include "Random.h"

#include <string>
#include <string_view>

namespace quorin::bench {

// Plausible mixed-case ASCII file and folder names ("Budget_report 2019-07.XLS"), built from a
// fixed vocabulary. The only Z in any name is that of ".zip", so a word such as "zebra" is a
// guaranteed miss, and kRareWord appears only where it was planted.
class NameGenerator {
  public:
    static constexpr std::string_view kRareWord = "Wombat";

    NameGenerator(uint64_t seed, uint32_t rareOneIn) : random_(seed), rareOneIn_(rareOneIn) {}

    // A file name of minWords to maxWords words, maybe a number, and an extension.
    std::string FileName(uint32_t minWords, uint32_t maxWords);
    // A folder name of one or two words, sometimes with a number; never begins with "TEMP".
    std::string FolderName();

  private:
    enum class CaseStyle { Title, Lower, Upper, Camel };

    std::string Words(uint32_t count, CaseStyle style);
    std::string Number();
    std::string Extension();
    std::string_view Separator(CaseStyle style);
    CaseStyle PickStyle();

    Random random_;
    uint32_t rareOneIn_;
};

}  // namespace quorin::bench
