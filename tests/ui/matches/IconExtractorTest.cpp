#include "ui/matches/ctlIconExtractor.h"

#include "platform/Text.h"
#include "platform/WinHandles.h"
#include "platform/registry/ScratchClasses.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <vector>

namespace quorin {
namespace {

using Picture = std::vector<std::uint32_t>;

constexpr int kIconSize = 16;
constexpr char kShell32[] = "%SystemRoot%\\system32\\shell32.dll";

std::string WindowsFolder() {
    wchar_t buffer[MAX_PATH] = {};
    GetWindowsDirectoryW(buffer, MAX_PATH);
    return Narrow(buffer);
}

std::string SystemFile(const std::string& name) {
    return WindowsFolder() + "\\system32\\" + name;
}

UniqueImageList NewList() {
    return UniqueImageList(ImageList_Create(kIconSize, kIconSize, ILC_COLOR32 | ILC_MASK, 0, 4));
}

// The image as a list view shows it, over a colour no icon surface has.
Picture Draw(const UniqueImageList& list, int index) {
    BITMAPINFO info{};
    info.bmiHeader = {sizeof info.bmiHeader, kIconSize, -kIconSize, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    const UniqueBitmap target(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    const UniqueMemoryDC dc(CreateCompatibleDC(nullptr));
    const SelectedObject selection(dc.get(), target.get());
    const UniqueBrush magenta(CreateSolidBrush(RGB(255, 0, 255)));
    const RECT whole{0, 0, kIconSize, kIconSize};
    FillRect(dc.get(), &whole, magenta.get());
    ImageList_Draw(list.get(), index, dc.get(), 0, 0, ILD_NORMAL);
    GdiFlush();
    const auto* pixels = static_cast<const std::uint32_t*>(bits);
    Picture picture(pixels, pixels + kIconSize * kIconSize);
    for (std::uint32_t& pixel : picture) {
        pixel &= 0xFFFFFF;
    }
    return picture;
}

bool IsBlank(const Picture& picture) {
    return std::all_of(picture.begin(), picture.end(),
                       [&](std::uint32_t pixel) { return pixel == picture.front(); });
}

class IconExtractorTest : public ::testing::Test {
  protected:
    IconExtractorTest() {
        extractor_.ImageListSmall(small_.get());
        extractor_.ImageListLarge(large_.get());
        classes_.RegisterType(".qzt", "QuorinTest.Text", "Quorin text",
                              std::string(kShell32) + ",-152");
        classes_.RegisterType(".qz1", "QuorinTest.Self", "Quorin self", "%1");
        classes_.RegisterType(".qzn", "QuorinTest.NoIcon", "Quorin without icon", "");
        classes_.RegisterType(".qzrt", "QuorinTest.Long", "Quorin long",
                              std::string(kShell32) + ",-153");
        classes_.RegisterType(".q~", "QuorinTest.Short", "Quorin short",
                              std::string(kShell32) + ",-154");
    }

    // What the extractor makes of one icon named directly.
    Picture IconOf(const std::string& file, int index) {
        std::string filePath = file;
        int iconIndex = index;
        return DrawLarge(extractor_.AddIcon("", filePath, iconIndex));
    }

    Picture DrawLarge(std::optional<int> image) { return image ? Draw(large_, *image) : Picture{}; }

    ScratchClasses classes_;
    UniqueImageList small_ = NewList();
    UniqueImageList large_ = NewList();
    ctlIconExtractor extractor_;
};

// A file's type is its last four characters, and only a lower-case ".exe" is a program with its
// own icon; a type without one gets nothing, an icon not extracted a blank.
TEST_F(IconExtractorTest, FollowsExtensionFileTypeAndDefaultIconOfTheLastFourCharacters) {
    const Picture expected = IconOf(SystemFile("shell32.dll"), -152);
    ASSERT_FALSE(IsBlank(expected));
    ASSERT_NE(expected, IconOf(SystemFile("shell32.dll"), 152));
    EXPECT_EQ(DrawLarge(extractor_.RetrieveFileIcon("notes.qzt", "C:\\Users")), expected);
    EXPECT_EQ(DrawLarge(extractor_.RetrieveExtIcon(".qzt")), expected);

    ASSERT_FALSE(IsBlank(DrawLarge(extractor_.RetrieveExtIcon(".qzrt"))));
    const Picture shortType = DrawLarge(extractor_.RetrieveExtIcon(".q~"));
    ASSERT_FALSE(IsBlank(shortType));
    EXPECT_FALSE(extractor_.RetrieveFileIcon("page.qzrt", "C:\\"));  // looked up as "qzrt"
    EXPECT_EQ(DrawLarge(extractor_.RetrieveFileIcon(".q~", "C:\\")), shortType);
    EXPECT_FALSE(extractor_.RetrieveFileIcon("a.q~", "C:\\"));  // looked up as "a.q~"

    const std::string system = WindowsFolder() + "\\system32";
    const Picture own = IconOf(SystemFile("notepad.exe"), 0);
    ASSERT_FALSE(IsBlank(own));
    EXPECT_EQ(DrawLarge(extractor_.RetrieveFileIcon("notepad.exe", system)), own);
    const Picture upper = DrawLarge(extractor_.RetrieveFileIcon("NOTEPAD.EXE", system));
    EXPECT_EQ(upper, DrawLarge(extractor_.RetrieveExtIcon(".EXE")));
    EXPECT_NE(upper, own);

    const int images = ImageList_GetImageCount(large_.get());
    EXPECT_FALSE(extractor_.RetrieveExtIcon(".qzunregistered"));
    EXPECT_FALSE(extractor_.RetrieveExtIcon(".qzn"));
    EXPECT_FALSE(extractor_.RetrieveFileIcon("readme", "C:\\"));
    EXPECT_EQ(ImageList_GetImageCount(large_.get()), images);
    const std::optional<int> self = extractor_.RetrieveExtIcon(".qz1");
    ASSERT_TRUE(self);
    EXPECT_TRUE(IsBlank(Draw(large_, *self)));
    const Picture missingFile = IconOf("C:\\nowhere\\none.dll", 0);
    ASSERT_FALSE(missingFile.empty());
    EXPECT_TRUE(IsBlank(missingFile));
    EXPECT_EQ(IconOf(SystemFile("shell32.dll"), 99999), missingFile);
}

TEST_F(IconExtractorTest, ReadsPathAndIndexFromTheIconLocation) {
    const std::string windows = WindowsFolder();
    struct Case {
        std::string location;
        std::string path;
        int index;
    };
    const Case cases[] = {
        {"%SystemRoot%\\a.dll,-152", windows + "\\a.dll", -152},
        {"%SystemRoot%\\%SystemRoot%.dll, 3 ", windows + "\\%SystemRoot%.dll", 3},
        {"%systemroot%\\a.dll,2", "%systemroot%\\a.dll", 2},
        {"%SystemRoot%\\a.dll,x", "%SystemRoot%\\a.dll", 7},
        {"C:\\a,b.dll,4", "C:\\a", 7},
        {"%1", "", 0},
        {"", "given.dll", 7},
    };
    for (const Case& c : cases) {
        std::string filePath = "given.dll";
        int iconIndex = 7;
        extractor_.AddIcon(c.location, filePath, iconIndex);
        EXPECT_EQ(filePath, c.path) << c.location;
        EXPECT_EQ(iconIndex, c.index) << c.location;
    }
}

// A request adds the same image to each list set; the index returned is the large list's.
TEST_F(IconExtractorTest, EveryRequestAddsTheSameImageToBothListsAndGivesTheLargeListsIndex) {
    ctlIconExtractor smallOnly;
    smallOnly.ImageListSmall(small_.get());
    EXPECT_EQ(smallOnly.RetrieveExtIcon(".qzt"), 0);
    EXPECT_FALSE(ctlIconExtractor{}.RetrieveExtIcon(".qzt"));
    EXPECT_EQ(extractor_.RetrieveExtIcon(".qzt"), 0);  // the small list got it as 1
    EXPECT_EQ(extractor_.RetrieveExtIcon(".qzt"), 1);
    EXPECT_EQ(extractor_.RetrieveExtIcon(".q~"), 2);

    ASSERT_EQ(ImageList_GetImageCount(small_.get()), 4);
    ASSERT_EQ(ImageList_GetImageCount(large_.get()), 3);
    EXPECT_EQ(Draw(large_, 1), Draw(large_, 0));
    for (int index = 0; index < 3; ++index) {
        EXPECT_EQ(Draw(small_, index + 1), Draw(large_, index));
    }
}

}  // namespace
}  // namespace quorin
