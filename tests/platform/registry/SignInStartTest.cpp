#include "platform/registry/SignInStart.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <string>

#include "platform/registry/clsRegistry.h"

namespace quorin {
namespace {

constexpr char kScratchKey[] = "Software\\QuorinTest\\SignInStart\\Run";

class SignInStartTest : public ::testing::Test {
  protected:
    ~SignInStartTest() override {
        RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\QuorinTest\\SignInStart");
    }

    std::string Stored() const {
        const RegistryValue value =
            clsRegistry().QueryValue(HKEY_CURRENT_USER, kScratchKey, "Quorin");
        return value.IsEmpty() ? "(none)" : value.AsText();
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

    for (const auto& [argument, signIn] : {std::pair{"/tray", true},
                                           {"  /TRAY ", true},
                                           {"", false},
                                           {"/trayx", false},
                                           {"tray", false}}) {
        EXPECT_EQ(IsSignInStart(argument), signIn) << argument;
    }
}

}  // namespace
}  // namespace quorin
