#include "ui/main/MainDesign.h"

#include <commctrl.h>

#include "ui/main/frmMain.h"

namespace quorin {

// One control a line: the member, its panel, class, text, style, id and place in twips. Controls
// the window never touches after making them have no member; their names stay as comments.
// clang-format off
std::span<const MainDesign::Control> MainDesign::Controls() {
    static const Control kControls[] = {
        {&frmMain::lblEnterWord_, kGoPanel, WC_STATICW, "Enter word:", 0, -1, {120, 165, 960, 225}},
        {nullptr /* cmdGo */, kGoPanel, WC_BUTTONW, "Go", BS_DEFPUSHBUTTON | WS_TABSTOP, kIdGo, {4200, 90, 900, 375}},
        {&frmMain::lblFile, kGoPanel, WC_STATICW, "", SS_LEFTNOWORDWRAP | SS_NOPREFIX, kIdFile, {1080, 540, 4020, 225}},
        {&frmMain::ProgressBar1, kGoPanel, PROGRESS_CLASSW, "", 0, kIdSearchProgress, {1080, 570, 3000, 165}},
        {nullptr /* lblIndexLastUpdated */, kIndexPanel, WC_STATICW, "Index last updated:", 0, -1, {120, 90, 1680, 225}},
        {&frmMain::lblLastUpdated, kIndexPanel, WC_STATICW, "", SS_NOPREFIX, kIdLastUpdated, {1800, 90, 3400, 225}},
        {&frmMain::lblUpdateInterval, kIndexPanel, WC_STATICW, "Index automatically updated every 1 day(s).", 0,
         kIdUpdateInterval, {120, 345, 5000, 225}},
        // Right of "Update Index Now", the panel's one free line.
        {&frmMain::lblIndexSummary_, kIndexPanel, WC_STATICW, "", SS_LEFTNOWORDWRAP | SS_NOPREFIX, kIdIndexSummary,
         {1800, 600, 3480, 225}},
        {nullptr /* lblShutdown */, kExitPanel, WC_STATICW, "Please wait while Quorin shuts down...", SS_CENTER, -1,
         {0, 330, 5280, 225}},
        // The animation's whole frame (96 x 60 pixels at 96 DPI) and three lines of text fit at any DPI.
        {nullptr /* Animation1 */, kProgressPanel, ANIMATE_CLASSW, "", ACS_CENTER | ACS_TRANSPARENT | ACS_AUTOPLAY,
         kIdAnimation, {0, 0, 1440, 900}},
        {nullptr /* lblPleaseWait */, kProgressPanel, WC_STATICW,
         "Please wait while Quorin indexes your hard drive. Depending on how much stuff you have, this may take "
         "a few minutes...", 0, -1, {1500, 15, 3800, 675}},
        {nullptr /* lblFolders */, kProgressPanel, WC_STATICW, "# of folders indexed:", SS_NOPREFIX, -1,
         {1500, 720, 1900, 240}},
        {nullptr /* lblCounter */, kProgressPanel, WC_STATICW, "", 0, kIdCounter, {3420, 720, 1000, 240}},
    };
    return kControls;
}

std::span<const MainDesign::Link> MainDesign::Links() {
    static const Link kLinks[] = {
        {nullptr /* lnkUpdate */, kIndexPanel, kIdUpdate, "Update Index Now", 120, 600},
        {&frmMain::lnkFoldersLeftOut_, kIndexPanel, kIdFoldersLeftOut, "", 1800, 600},
        {nullptr /* lnkGeneralOptions */, kOptionsPanel, kIdGeneralOptions, "General Options", 120, 90},
        {nullptr /* lnkFileTypes */, kOptionsPanel, kIdFileTypes, "Change file types that are indexed", 120, 345},
        {nullptr /* lnkWords */, kOptionsPanel, kIdWords, "Add/delete assigned words", 120, 600},
        {nullptr /* lnkHelp */, kHelpPanel, kIdHelp, "Click here for help", 120, 90},
        {nullptr /* lnkQuorin */, kHelpPanel, kIdQuorinPage, "Quorin", 120, 345},
        {nullptr /* lnkVeltaro */, kHelpPanel, kIdVeltaroPage, "Veltaro, Inc.", 120, 600},
        {nullptr /* lnkCancel */, kProgressPanel, kIdCancel, "Cancel", 4560, 720},
    };
    return kLinks;
}
// clang-format on

}  // namespace quorin
