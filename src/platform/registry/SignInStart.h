#pragma once

#include <string>
#include <string_view>

namespace quorin {

// The switch that a start at sign-in passes, so that the program goes to the tray without the
// splash window.
inline constexpr std::string_view kSignInSwitch = "/tray";

// True when the command line's arguments are the sign-in switch (in any case).
bool IsSignInStart(std::string_view arguments);

// The value under the user's Run key that starts the program when the user signs in. Failures
// to write or remove it are absorbed, as every registry write of the program is.
class SignInStart {
  public:
    static constexpr std::string_view kRunKey = "Software\\Microsoft\\Windows\\CurrentVersion\\Run";

    // "\"path\" /tray": what the value holds for the executable at `exePath`.
    static std::string Command(std::string_view exePath);

    // The value `name` of HKEY_CURRENT_USER\`key`, holding `command`; tests choose a scratch key.
    explicit SignInStart(std::string command, std::string key = std::string(kRunKey),
                         std::string name = "Quorin");

    bool IsOn() const;
    void TurnOn() const;
    void TurnOff() const;

    const std::string& CommandText() const { return command_; }

  private:
    std::string command_;
    std::string key_;
    std::string name_;
};

}  // namespace quorin
