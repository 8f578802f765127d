// The lenient readings of settings text and the name rules of the walk, on any bytes: numbers
// survive printing and reading again, every number is also a boolean (zero is false), and the
// two filter modes always disagree.
#include "index/IndexSettings.h"
#include "index/NameRules.h"
#include "platform/LenientConversions.h"

#include <cstdlib>
#include <string>
#include <string_view>

namespace quorin::fuzz {
namespace {

void Require(bool condition) {
    if (!condition) {
        std::abort();
    }
}

}  // namespace
}  // namespace quorin::fuzz

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    using namespace quorin;
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const std::optional<int32_t> number = ParseWholeNumber(text);
    const std::optional<bool> flag = ParseLenientBoolean(text);
    if (number) {
        fuzz::Require(ParseWholeNumber(std::to_string(*number)) == number);
        fuzz::Require(ParseWholeNumber(" " + std::to_string(*number) + " ") == number);
        fuzz::Require(flag == (*number != 0));
    }
    const bool included = PassesFileTypeFilter(text, kDefaultFilter, true);
    fuzz::Require(included != PassesFileTypeFilter(text, kDefaultFilter, false));
    fuzz::Require(!PassesFileTypeFilter(text, "", true));
    IsTempFolderName(text);
    return 0;
}
