#pragma once

#include <exception>
#include <functional>
#include <string>
#include <string_view>

namespace quorin {

// Receives the text of an error that a window handler let escape.
using WindowErrorHandler = std::function<void(std::string_view message)>;

// Replaces how handler errors are shown; an empty handler restores the default, a message box
// with the error's text.
void SetWindowErrorHandler(WindowErrorHandler handler);

// Shows one error through the current handler. A report asked for while another is on screen
// is dropped: the message box runs its own loop, and a handler that fails on every message
// (a paint, a timer) would otherwise stack boxes without end.
void ReportWindowError(std::string_view message) noexcept;

// Runs one message handler. The OS that called the window procedure cannot unwind C++
// exceptions, so whatever the handler throws stops here: `recover` tidies up and supplies the
// result, then the error is reported.
template <typename Handler, typename Recover>
auto CallGuarded(Handler&& handler, Recover&& recover) noexcept -> decltype(handler()) {
    std::string message;
    try {
        return handler();
    } catch (const std::exception& error) {
        message = error.what();
    } catch (...) {
        message = "An unexpected error occurred.";
    }
    auto result = recover();
    ReportWindowError(message);
    return result;
}

}  // namespace quorin
