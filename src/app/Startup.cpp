#include "app/Startup.h"

#include <optional>

#include "QuorinVersion.h"
#include "platform/Errors.h"
#include "ui/Hourglass.h"
#include "ui/dialogs/frmWelcome.h"
#include "ui/main/MainSettings.h"
#include "ui/splash/frmSplash.h"

namespace quorin {

namespace {

constexpr std::string_view kMissingIndexText =
    "Your index file is either missing or corrupted. Would you like to generate a new index file "
    "now? (Answering no will exit the program.)";

}  // namespace

Startup::Startup(StartupServices services) : services_(std::move(services)) {}

Startup::~Startup() = default;

bool Startup::Main() {
    std::optional<Hourglass> busy(std::in_place);
    frmSplash splash;
    if (services_.showSplash) {
        splash.Show();
    }
    WriteMainSettings();
    try {
        if (!Configured()) {
            busy.reset();
            splash.Unload();
            if (!RunFirstStartWizard()) {
                return false;
            }
            busy.emplace();
            // Back until the main window has loaded, as on every other start.
            if (services_.showSplash) {
                splash.Show();
            }
        }
        mainForm_ = std::make_unique<frmMain>(
            MainServices{services_.settings, services_.clock, services_.prompter, services_.shell,
                         services_.index, tray_, services_.matches, services_.options,
                         services_.help, services_.onUnloaded});
        if (services_.onMainLoaded) {
            services_.onMainLoaded(*mainForm_);
        }
        busy.reset();
        splash.Unload();
        return EnsureIndex();
    } catch (const Error& error) {
        // A bad setting or word file: nothing is written, the user's files stay as they are.
        splash.Unload();
        mainForm_.reset();
        services_.index.Release();
        ReportFatal(error);
        return false;
    }
}

// The separator is appended unconditionally, so a program folder at a drive root, which keeps
// its own separator ("C:\"), is stored with two.
void Startup::WriteMainSettings() {
    std::string folder = services_.programFolder;
    if (folder.ends_with(':')) {
        folder += '\\';
    }
    services_.settings.Save(MainSettings::kSection, MainSettings::kPath, folder + "\\");
    services_.settings.Save(MainSettings::kSection, MainSettings::kVersionMajor,
                            std::to_string(QUORIN_VERSION_MAJOR));
    services_.settings.Save(MainSettings::kSection, MainSettings::kVersionMinor,
                            std::to_string(QUORIN_VERSION_MINOR));
    services_.settings.Save(MainSettings::kSection, MainSettings::kVersionRevision,
                            std::to_string(QUORIN_VERSION_REVISION));
}

// An installation from before the wizard that has an index of its own was configured then: it
// is marked so and goes on as before, rather than meeting the wizard after an update.
bool Startup::Configured() {
    if (services_.settings.Get(MainSettings::kSection, MainSettings::kConfigured, "") == "1") {
        return true;
    }
    if (services_.index.Get().LastUpdated == 0) {
        return false;
    }
    services_.settings.Save(MainSettings::kSection, MainSettings::kConfigured, "1");
    return true;
}

// Only the wizard's Finish, once it has built the first index, ends it with OK.
bool Startup::RunFirstStartWizard() {
    frmWelcome wizard(
        {services_.index.Get(), services_.prompter, services_.options, services_.help});
    if (wizard.ShowModal(nullptr) != IDOK) {
        return false;
    }
    services_.settings.Save(MainSettings::kSection, MainSettings::kConfigured, "1");
    return true;
}

bool Startup::EnsureIndex() {
    if (services_.index.Get().LastUpdated == 0) {
        if (services_.prompter.Ask("Missing index", kMissingIndexText, PromptButtons::YesNo,
                                   PromptIcon::Question) != PromptAnswer::Yes) {
            mainForm_->Unload();
            return false;
        }
        mainForm_->Show();
        mainForm_->BuildIndex(false);
        if (mainForm_->Unloaded()) {
            return false;  // the Windows session ended during the build
        }
        if (services_.index.Get().LastUpdated == 0) {
            mainForm_->Unload();
            return false;
        }
    }
    mainForm_->EnableTimer();
    return true;
}

void Startup::ReportFatal(const std::exception& error) {
    services_.prompter.Ask("Cannot start Quorin",
                           std::string(error.what()) + " Quorin cannot start and will close.",
                           PromptButtons::Ok, PromptIcon::Critical);
}

}  // namespace quorin
