#include "platform/registry/clsRegistry.h"

#include "platform/Errors.h"
#include "platform/registry/ScratchClasses.h"
#include "platform/registry/SignInStart.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quorin {
namespace {

using Names = std::vector<std::string>;

// SetKeyValue writes under HKEY_CURRENT_USER only, so the tests that write keep to a key there.
class RegistryTest : public ::testing::Test {
  protected:
    static constexpr char kKey[] = "Software\\Quorin Tests\\Registry";
    ~RegistryTest() override { RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\Quorin Tests"); }

    RegistryValue Read(const std::string& key, const std::string& name = "",
                       HKEY root = HKEY_CLASSES_ROOT) const {
        return registry_.QueryValue(root, key, name);
    }
    Names List(const std::string& key) const {
        return registry_.GetKeyNames(HKEY_CLASSES_ROOT, key);
    }

    ScratchClasses classes_;
    clsRegistry registry_;
};

// Also from keys that may only be read, as a standard user may the machine's file types.
TEST_F(RegistryTest, TextAndNumbersComeBackAsStoredAnythingElseOrMissingAsEmpty) {
    classes_.RegisterType(".qzt", "QuorinTest.Text", "Quorin test text", "");
    classes_.MakeReadOnly(".qzt");
    HKEY writable = nullptr;
    ASSERT_EQ(RegOpenKeyExW(HKEY_CLASSES_ROOT, L".qzt", 0, KEY_ALL_ACCESS, &writable),
              ERROR_ACCESS_DENIED);
    EXPECT_EQ(Read(".qzt"), RegistryValue("QuorinTest.Text"));
    EXPECT_EQ(Read("QuorinTest.Text"), RegistryValue("Quorin test text"));
    for (const auto& [key, name] : {std::pair{".qzunregistered", ""},
                                    {".qzt", "NoSuchValue"},
                                    {"QuorinTest.Text\\DefaultIcon", ""},
                                    {"\\DefaultIcon", ""}}) {  // an unregistered type's icon
        EXPECT_TRUE(Read(key, name).IsEmpty()) << key;
        EXPECT_EQ(Read(key, name).AsText(), "");
    }

    const std::string key = "QuorinTest.Values";
    classes_.SetText(key, "expand", "%SystemRoot%\\system32\\shell32.dll,-152", REG_EXPAND_SZ);
    classes_.SetText(key, "accents", "Fichier texte \xC3\xA9t\xC3\xA9");
    const DWORD negative = 0xFFFFFF85;
    classes_.SetValue(key, "dword", REG_DWORD, &negative, sizeof negative);
    const BYTE binary[] = {'a', 0, 'b', 0, 0, 0};
    classes_.SetValue(key, "binary", REG_BINARY, binary, sizeof binary);
    const ULONGLONG wide = 5;
    classes_.SetValue(key, "qword", REG_QWORD, &wide, sizeof wide);
    classes_.SetValue(key, "nodata", REG_SZ, nullptr, 0);
    EXPECT_EQ(Read(key, "expand"), RegistryValue("%SystemRoot%\\system32\\shell32.dll,-152"));
    EXPECT_EQ(Read(key, "accents"), RegistryValue("Fichier texte \xC3\xA9t\xC3\xA9"));
    EXPECT_EQ(Read(key, "dword"), RegistryValue(-123));
    for (const char* empty : {"binary", "qword", "nodata"}) {
        EXPECT_TRUE(Read(key, empty).IsEmpty()) << empty;
    }
}

// Subkeys end with one empty name, a name of fifty characters ends the listing early and more
// than the fixed number of names is an error; keys that may only be read are still listed.
TEST_F(RegistryTest, ListsSubkeysFollowedByOneEmptyName) {
    const std::string fits = "a" + std::string(48, 'x');
    for (const std::string& key :
         Names{"Parent\\First", "Parent\\Second", "Parent\\Third\\Grandchild", "Childless",
               "Long\\" + fits, "Long\\b" + std::string(49, 'x'), "Long\\c"}) {
        classes_.CreateKey("QuorinTest." + key);
    }
    classes_.MakeReadOnly("QuorinTest.Parent");
    EXPECT_EQ(List("QuorinTest.Parent"), (Names{"First", "Second", "Third", ""}));
    EXPECT_EQ(List("QuorinTest.Childless"), Names{""});
    EXPECT_EQ(List("QuorinTest.Missing"), Names{""});
    EXPECT_EQ(List("QuorinTest.Long"), (Names{fits, ""}));

    for (size_t i = 0; i < clsRegistry::kMaxKeyNames; ++i) {
        classes_.CreateKey("QuorinTest.Many\\" + std::to_string(10000 + i));
    }
    EXPECT_EQ(List("QuorinTest.Many").size(), clsRegistry::kMaxKeyNames + 1);
    classes_.CreateKey("QuorinTest.Many\\99999");
    EXPECT_THROW(List("QuorinTest.Many"), OutOfRangeError);
}

// Text and numbers convert both ways (which texts are whole numbers is ConversionsTest's); text
// is written with its terminating NUL; other types and missing keys get nothing.
TEST_F(RegistryTest, WritesTextAndNumbersFromEitherAndNothingElse) {
    registry_.CreateNewKey(kKey, HKEY_CURRENT_USER);
    EXPECT_EQ(RegistryValue().AsText(), "");
    EXPECT_EQ(RegistryValue().AsNumber(), 0);
    EXPECT_EQ(RegistryValue(-2147483647 - 1).AsText(), "-2147483648");
    EXPECT_EQ(RegistryValue("2147483647").AsNumber(), 2147483647);
    EXPECT_THROW(RegistryValue("").AsNumber(), TypeMismatchError);

    registry_.SetKeyValue(kKey, "text", RegistryValue("h\xC3\xA9llo"), REG_SZ);
    registry_.SetKeyValue(kKey, "number", RegistryValue(42), REG_SZ);
    registry_.SetKeyValue(kKey, "fromNumber", RegistryValue(-7), REG_DWORD);
    registry_.SetKeyValue(kKey, "fromText", RegistryValue(" 1234 "), REG_DWORD);
    EXPECT_THROW(registry_.SetKeyValue(kKey, "bad", RegistryValue("12 monkeys"), REG_DWORD),
                 TypeMismatchError);
    registry_.SetKeyValue(kKey, "binary", RegistryValue("data"), REG_BINARY);
    registry_.SetKeyValue("Software\\Quorin Tests\\Missing", "text", RegistryValue("x"), REG_SZ);

    EXPECT_EQ(Read(kKey, "text", HKEY_CURRENT_USER), RegistryValue("h\xC3\xA9llo"));
    EXPECT_EQ(Read(kKey, "number", HKEY_CURRENT_USER), RegistryValue("42"));
    EXPECT_EQ(Read(kKey, "fromNumber", HKEY_CURRENT_USER), RegistryValue(-7));
    EXPECT_EQ(Read(kKey, "fromText", HKEY_CURRENT_USER), RegistryValue(1234));
    const auto stored = [](const wchar_t* name, DWORD& type) {
        DWORD size = 0;
        const LSTATUS status = RegGetValueW(HKEY_CURRENT_USER, L"Software\\Quorin Tests\\Registry",
                                            name, RRF_RT_ANY, &type, nullptr, &size);
        return status == ERROR_SUCCESS ? size : 0;
    };
    DWORD type = 0;
    EXPECT_EQ(stored(L"text", type), 6 * sizeof(wchar_t));
    EXPECT_EQ(type, static_cast<DWORD>(REG_SZ));
    EXPECT_EQ(stored(L"binary", type), 0u);
    EXPECT_EQ(stored(L"bad", type), 0u);
    EXPECT_EQ(registry_.GetKeyNames(HKEY_CURRENT_USER, "Software\\Quorin Tests"),
              (Names{"Registry", ""}));
}

// The Run value: the quoted path with the switch, written once however often it is turned on.
TEST_F(RegistryTest, SignInStartComesAndGoesAsTheQuotedPathWithTheSwitch) {
    const std::string runKey = std::string(kKey) + "\\Run";
    SignInStart run(SignInStart::Command("C:\\Users\\me\\Programs\\Quorin\\quorin.exe"), runKey);
    const auto stored = [&] { return Read(runKey, "Quorin", HKEY_CURRENT_USER); };
    EXPECT_EQ(run.CommandText(), "\"C:\\Users\\me\\Programs\\Quorin\\quorin.exe\" /tray");
    EXPECT_FALSE(run.IsOn()) << "the key does not even exist yet";
    run.TurnOff();
    EXPECT_TRUE(stored().IsEmpty());
    for (int i = 0; i < 2; ++i) {
        run.TurnOn();
        EXPECT_TRUE(run.IsOn());
        EXPECT_EQ(stored(), RegistryValue(run.CommandText()));
    }
    run.TurnOff();
    EXPECT_FALSE(run.IsOn());
    EXPECT_TRUE(stored().IsEmpty());
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
