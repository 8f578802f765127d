#include "platform/registry/SignInStart.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <string>

#include "platform/Text.h"

namespace quorin {
namespace {

constexpr char kScratchKey[] = "Software\\QuorinTest\\SignInStart\\Run";

class SignInStartTest : public ::testing::Test {
  protected:
    ~SignInStartTest() override {
        RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\QuorinTest\\SignInStart");
    }

    std::string Stored() const {
        wchar_t text[300] = {};
        DWORD bytes = sizeof text;
        if (RegGetValueW(HKEY_CURRENT_USER, Widen(kScratchKey).c_str(), L"Quorin", RRF_RT_REG_SZ,
                         nullptr, text, &bytes) != ERROR_SUCCESS) {
            return "(none)";
        }
        return Narrow(text);
    }

    SignInStart run{SignInStart::Command("C:\\Users\\me\\Programs\\Quorin\\quorin.exe"),
                    kScratchKey};
};

TEST_F(SignInStartTest, TheValueIsTheQuotedPathWithTheSwitchAndComesAndGoes) {
    EXPECT_EQ(run.CommandText(), "\"C:\\Users\\me\\Programs\\Quorin\\quorin.exe\" /tray");
    EXPECT_FALSE(run.IsOn()) << "the key does not even exist yet";
    run.TurnOff();
    EXPECT_EQ(Stored(), "(none)");

    run.TurnOn();
    EXPECT_TRUE(run.IsOn());
    EXPECT_EQ(Stored(), run.CommandText());
    run.TurnOn();
    EXPECT_EQ(Stored(), run.CommandText()) << "written again, not doubled";

    run.TurnOff();
    EXPECT_FALSE(run.IsOn());
    EXPECT_EQ(Stored(), "(none)");
}

TEST(SignInSwitch, OnlyTheSwitchItselfMeansASignInStart) {
    EXPECT_TRUE(IsSignInStart("/tray"));
    EXPECT_TRUE(IsSignInStart("  /TRAY "));
    EXPECT_FALSE(IsSignInStart(""));
    EXPECT_FALSE(IsSignInStart("/trayx"));
    EXPECT_FALSE(IsSignInStart("tray"));
}

}  // namespace
}  // namespace quorin
