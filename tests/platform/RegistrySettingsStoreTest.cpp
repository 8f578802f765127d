#include "platform/RegistrySettingsStore.h"

#include "platform/Errors.h"
#include "platform/Text.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <random>
#include <string>

namespace quorin {
namespace {

// Each test works under a scratch key of its own and deletes it afterwards.
class RegistrySettingsStoreTest : public testing::Test {
  protected:
    void TearDown() override { RegDeleteTreeW(HKEY_CURRENT_USER, Widen(root_).c_str()); }

    void SetRaw(const std::string& section, const std::string& key, DWORD type, const void* data,
                DWORD size) {
        ASSERT_EQ(RegSetKeyValueW(HKEY_CURRENT_USER, Widen(root_ + "\\" + section).c_str(),
                                  Widen(key).c_str(), type, data, size),
                  ERROR_SUCCESS);
    }

    const std::string root_ = "Software\\QuorinTest-" + std::to_string(std::random_device{}());
    RegistrySettingsStore store_{root_};
};

TEST_F(RegistrySettingsStoreTest, ReadsSavedStringsInAnyCaseOthersLooselyAndNamesAFailure) {
    EXPECT_EQ(store_.Get("Index", "Interval", "24"), "24") << "no key yet";
    store_.Save("Index", "Filter", ".DOC .XLS ");
    store_.Save("Main", "Title", "caf\xC3\xA9 \xE2\x82\xAC");
    store_.Save("Main", "Empty", "");
    EXPECT_EQ(RegistrySettingsStore(root_).Get("Index", "Filter", ""), ".DOC .XLS ");
    EXPECT_EQ(store_.Get("Main", "Title", ""), "caf\xC3\xA9 \xE2\x82\xAC");
    EXPECT_EQ(store_.Get("Main", "Empty", "default"), "");
    EXPECT_EQ(store_.Get("Main", "Absent", "default"), "default");
    store_.Save("INDEX", "FILTER", ".TXT ");  // the case of sections and keys does not count
    EXPECT_EQ(store_.Get("index", "filter", ""), ".TXT ");

    const DWORD number = 7;
    SetRaw("Main", "Number", REG_DWORD, &number, sizeof number);
    const wchar_t noNul[] = {L'a', L'b', L'c'};  // REG_SZ data need not end in a NUL
    SetRaw("Main", "NoNul", REG_SZ, noNul, sizeof noNul);
    EXPECT_EQ(store_.Get("Main", "Number", "default"), "default");
    EXPECT_EQ(store_.Get("Main", "NoNul", ""), "abc");

    try {
        store_.Save(std::string(300, 'S'), "Left", "1");  // a key name longer than allowed
        FAIL() << "no error";
    } catch (const Error& error) {
        EXPECT_NE(std::string(error.what()).find("\"Left\""), std::string::npos) << error.what();
    }
}

}  // namespace
}  // namespace quorin
