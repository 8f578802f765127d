#pragma once

#include <exception>
#include <functional>
#include <memory>
#include <string>

#include "index/LazyIndex.h"
#include "platform/Clock.h"
#include "platform/Prompter.h"
#include "platform/SettingsStore.h"
#include "platform/Shell.h"
#include "ui/help/Help.h"
#include "ui/main/MatchesOpener.h"
#include "ui/main/OptionsOpener.h"
#include "ui/main/clsSysTray.h"
#include "ui/main/frmMain.h"

namespace quorin {

struct StartupServices {
    SettingsStore& settings;
    const Clock& clock;
    Prompter& prompter;
    Shell& shell;
    LazyIndex& index;
    MatchesOpener& matches;
    OptionsOpener& options;
    Help& help;
    std::string programFolder;  // without a trailing separator
    bool showSplash = true;
    std::function<void()> onUnloaded;  // the main window has gone
    // The main window has been made and is still hidden: what depends on it (the owner of
    // message boxes, the Matches window's word list and icon) is connected here, before the
    // start-up build can let the user reach it.
    std::function<void(frmMain&)> onMainLoaded;
};

// The program's start: the splash window, the "Main" settings, the first-run wizard until it has
// been finished once, the main window hidden in the tray, the engine, and the offer to build a
// missing index. It holds the tray icon and the main
// window for as long as the program runs.
class Startup {
  public:
    explicit Startup(StartupServices services);
    ~Startup();

    // True when the program runs on in the tray; false when it is to end.
    bool Main();

    frmMain* MainForm() { return mainForm_.get(); }
    clsSysTray& Tray() { return tray_; }

  private:
    void WriteMainSettings();
    bool Configured();
    bool RunFirstStartWizard();
    bool EnsureIndex();
    void ReportFatal(const std::exception& error);

    StartupServices services_;
    clsSysTray tray_;
    std::unique_ptr<frmMain> mainForm_;
};

}  // namespace quorin
