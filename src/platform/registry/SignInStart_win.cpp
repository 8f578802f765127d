#include "platform/registry/SignInStart.h"

#include "platform/Text.h"
#include "platform/WinHandles.h"

namespace quorin {

bool IsSignInStart(std::string_view arguments) {
    const std::string_view argument = TrimBlanks(arguments);
    if (argument.size() != kSignInSwitch.size()) {
        return false;
    }
    return CompareStringOrdinal(Widen(argument).c_str(), -1, Widen(kSignInSwitch).c_str(), -1,
                                TRUE) == CSTR_EQUAL;
}

std::string SignInStart::Command(std::string_view exePath) {
    std::string command = "\"";
    command.append(exePath).append("\" ").append(kSignInSwitch);
    return command;
}

SignInStart::SignInStart(std::string command, std::string key, std::string name)
    : command_(std::move(command)), key_(std::move(key)), name_(std::move(name)) {}

bool SignInStart::IsOn() const {
    return RegGetValueW(HKEY_CURRENT_USER, Widen(key_).c_str(), Widen(name_).c_str(), RRF_RT_ANY,
                        nullptr, nullptr, nullptr) == ERROR_SUCCESS;
}

void SignInStart::TurnOn() const {
    HKEY key = nullptr;
    if (RegCreateKeyExW(HKEY_CURRENT_USER, Widen(key_).c_str(), 0, nullptr, 0, KEY_SET_VALUE,
                        nullptr, &key, nullptr) != ERROR_SUCCESS) {
        return;
    }
    const UniqueKey run(key);
    const std::wstring text = Widen(command_);
    RegSetValueExW(run.get(), Widen(name_).c_str(), 0, REG_SZ,
                   reinterpret_cast<const BYTE*>(text.c_str()),
                   static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
}

void SignInStart::TurnOff() const {
    RegDeleteKeyValueW(HKEY_CURRENT_USER, Widen(key_).c_str(), Widen(name_).c_str());
}

}  // namespace quorin
