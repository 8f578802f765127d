#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <stdexcept>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "platform/Path.h"
#include "ui/dialogs/DriveChoice.h"
#include "ui/dialogs/FileTypeLists.h"
#include "ui/dialogs/IntervalText.h"
#include "ui/dialogs/NewWordModel.h"

namespace quorin {
namespace {

using Names = std::vector<std::string>;
using Marks = std::vector<bool>;

TEST(IntervalTextTest, LeadingNumberInShortestFormAndOneForZero) {
    const std::pair<const char*, const char*> cases[] = {
        {"3 hours", "3"}, {"2.50", "2.5"},    {"1.5", "1.5"}, {"  12", "12"}, {"-3", "-3"},
        {"-2", "-2"},     {"-2.50x", "-2.5"}, {"+4", "4"},    {".5", "0.5"},  {"7.", "7"},
        {"1.2.3", "1.2"}, {"1e3", "1"},       {"0", "1"},     {"", "1"},      {"abc", "1"},
        {"0.0", "1"},     {"-0", "1"},        {".", "1"},     {"-", "1"},     {"\t5", "1"},
        {"x5", "1"},
    };
    for (const auto& [typed, shown] : cases) {
        EXPECT_EQ(CorrectedIntervalText(typed), shown) << '"' << typed << '"';
    }
    for (const std::string& huge : {std::string("100000000000000000000"), std::string(400, '9')}) {
        EXPECT_EQ(CorrectedIntervalText(huge), huge);
    }
}

TEST(FileTypeListsTest, PlainExtensionsInRegistryOrderPreselectedByTheSavedFilterAndMode) {
    EXPECT_EQ(FileTypeNames({"*", ".txt", ".tar.gz", ".a,b", "txtfile", ".Doc", ".", ".x*", ""}),
              (Names{".txt", ".Doc", "."}));
    for (const bool include : {true, false}) {
        const FileTypeLists lists({".txt", ".doc", ".bmp"}, ".TXT .BMP ", include);
        EXPECT_EQ(lists.Selection(FileTypeList::Include), (Marks{include, false, include}));
        EXPECT_EQ(lists.Selection(FileTypeList::Exclude), (Marks{!include, false, !include}));
    }

    // A name is listed only with its blank: ".HTM" is not in ".HTML ", the last one needs its own.
    EXPECT_FALSE(FilterLists(".HTML .TXT", ".htm"));
    EXPECT_FALSE(FilterLists(".HTML .TXT", ".txt"));
    EXPECT_TRUE(FilterLists(".HTML .TXT", ".html"));

    // The filter follows the list's order; a mode change takes the complement.
    FileTypeLists lists({".Doc", ".txt", ".bmp"}, ".DOC ", true);
    EXPECT_EQ(lists.Filter(FileTypeList::Include), ".DOC ");

    lists.SelectComplement(FileTypeList::Exclude);
    EXPECT_EQ(lists.Selection(FileTypeList::Exclude), (Marks{false, true, true}));
    EXPECT_EQ(lists.Filter(FileTypeList::Exclude), ".TXT .BMP ");

    lists.Select(FileTypeList::Exclude, 1, false);
    lists.Select(FileTypeList::Exclude, 2, false);
    EXPECT_EQ(lists.Filter(FileTypeList::Exclude), "");

    lists.SelectComplement(FileTypeList::Include);
    EXPECT_EQ(lists.Filter(FileTypeList::Include), ".DOC .TXT .BMP ");
    EXPECT_THROW(lists.Select(FileTypeList::Include, 3, true), std::out_of_range);
}

TEST(DriveChoiceTest, OffersFixedAndNetworkDrivesAndMatchesConfiguredOnesOnce) {
    const Names entries{"a: []", "c: [SYSTEM]", "d: [DATA]", "e: [CD]", "z: [\\\\server\\share]"};
    Names asked;
    const Names offered = OfferedDriveEntries(entries, [&](const std::string& root) {
        asked.push_back(root);
        return root == "c:\\" || root == "d:\\" ? kFixedDrive
               : root == "z:\\"                 ? kNetworkDrive
               : root == "e:\\"                 ? 5u
                                                : 2u;
    });
    EXPECT_EQ(asked, (Names{"a:\\", "c:\\", "d:\\", "e:\\", "z:\\"}));
    EXPECT_EQ(offered, (Names{"c: [SYSTEM]", "d: [DATA]", "z: [\\\\server\\share]"}));

    // The engine's table: 21 slots, the unused ones empty; a CD drive configured selects nothing.
    std::array<std::string, 21> configured{"D:", "E:", "z:"};
    EXPECT_EQ(ConfiguredDriveSelection(offered, configured), (Marks{false, true, true}));
    EXPECT_EQ(ConfiguredDriveSelection({"c: [A]", "C: [B]"}, configured = {"c:"}),
              (Marks{true, false}));

    EXPECT_EQ(SelectedDrives(offered, {true, false, true}), (Names{"c:", "z:"}));
}

TEST(NewWordModelTest, SplitsAtTheLastSeparatorBeforeTheFinalCharacter) {
    for (const auto& [path, folder, file] : {std::tuple{"C:\\DOCS\\a.txt", "C:\\DOCS", "a.txt"},
                                             {"C:\\DOCS\\*.TXT", "C:\\DOCS", "*.TXT"},
                                             {"C:\\DOCS\\sub\\", "C:\\DOCS", "sub\\"},
                                             {"C:\\a.txt", "C:", "a.txt"},
                                             {"\\x", "", "x"},
                                             {"a.txt", "", ""},
                                             {"\\", "", ""},
                                             {"", "", ""}}) {
        // Written with "\\"; POSIX builds (quorin-cli) split at "/".
        const auto native = [](std::string text) {
            std::replace(text.begin(), text.end(), '\\', kPathSeparator);
            return text;
        };
        const FolderAndFile split = SplitAtLastSeparator(native(path));
        EXPECT_EQ(split.folder, native(folder)) << path;
        EXPECT_EQ(split.fileName, native(file)) << path;
    }
}

}  // namespace
}  // namespace quorin
