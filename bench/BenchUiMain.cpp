// quorin-bench-ui: the Matches window's side of scripts/bench-ui, timed inside the process: the
// real window over a real engine, shown on the screen, each step timed until its messages
// (painting included) are all handled.
//   quorin-bench-ui matches FOLDER WORD GOES   fill, sort by each column (the first window a
//                                              second after it filled, the second at once),
//                                              memory, and the GDI and USER objects and the
//                                              windows after GOES windows
//   quorin-bench-ui search FOLDER WORD RUNS    FindMatch alone, with a shown progress bar set
//                                              the paced way the main window sets it, and with
//                                              the bar set at every value; medians
//   quorin-bench-ui icons FOLDER WORD          the icon of every match, asked one by one from
//                                              an icon extractor (what a fill used to cost)
//   quorin-bench-ui answer TITLE SIGNAL OUT    for scripts/bench-ui, which times quorin.exe:
//                                              writes "ready" to OUT, waits for the file SIGNAL,
//                                              then for a window titled TITLE, and adds the
//                                              moment (seconds since 1970) that window has
//                                              answered and drawn all it had to draw. OUT, as
//                                              the program runs on quorin.exe's Wine desktop.
// Each command prints one JSON object; times in seconds.
#include "ProcessStats.h"

#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "cli/ConsolePrompter.h"
#include "cli/IdleEventPump.h"
#include "index/clsIndex.h"
#include "platform/Clock.h"
#include "platform/Errors.h"
#include "platform/MemorySettingsStore.h"
#include "platform/Shell.h"
#include "ui/PacedProgress.h"
#include "ui/matches/ctlIconExtractor.h"
#include "ui/matches/frmMatches.h"

namespace quorin::bench {
namespace {

class NoShell final : public Shell {
  public:
    void Open(std::string_view, std::string_view, std::string_view, int) override {}
};

double Now() {
    LARGE_INTEGER count{};
    LARGE_INTEGER frequency{};
    QueryPerformanceCounter(&count);
    QueryPerformanceFrequency(&frequency);
    return static_cast<double>(count.QuadPart) / static_cast<double>(frequency.QuadPart);
}

// Handles every message waiting, the paints the system makes once the queue is empty included.
void HandleAllMessages() {
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

// Wine answers GetGuiResources with 0, so the thread's windows are counted too.
struct Objects {
    DWORD gdi = 0;
    DWORD user = 0;
    int windows = 0;
};

BOOL CALLBACK CountWindow(HWND window, LPARAM count) {
    ++*reinterpret_cast<int*>(count);
    EnumChildWindows(window, &CountWindow, count);
    return TRUE;
}

Objects CountObjects() {
    const HANDLE self = GetCurrentProcess();
    int windows = 0;
    EnumThreadWindows(GetCurrentThreadId(), &CountWindow, reinterpret_cast<LPARAM>(&windows));
    return {GetGuiResources(self, GR_GDIOBJECTS), GetGuiResources(self, GR_USEROBJECTS), windows};
}

class Engine {
  public:
    explicit Engine(const std::string& folder)
        : index_(IndexServices{settings_, clock_, prompter_, events_, folder}) {}

    clsIndex& Index() { return index_; }
    MatchesHost Host() { return {index_, shell_, settings_, prompter_, {}, nullptr}; }

  private:
    MemorySettingsStore settings_;
    SystemClock clock_;
    ConsolePrompter prompter_{std::cerr};
    IdleEventPump events_;
    NoShell shell_;
    clsIndex index_;
};

// What the list's parent gets for a click on a column header.
void ClickColumn(HWND form, int column) {
    const HWND list = GetDlgItem(form, kMatchesListId);
    NMLISTVIEW click{};
    click.hdr = {list, static_cast<UINT_PTR>(kMatchesListId), LVN_COLUMNCLICK};
    click.iItem = -1;
    click.iSubItem = column;
    SendMessageW(form, WM_NOTIFY, kMatchesListId, reinterpret_cast<LPARAM>(&click));
}

int Matches(const std::string& folder, const std::string& word, int goes) {
    Engine engine(folder);
    HandleAllMessages();
    const uint64_t residentBefore = ResidentBytes();
    double fill = 0;
    double sortName = 0;
    double sortLocation = 0;
    double sortAgain = 0;
    double sortAtOnce = 0;
    uint64_t residentFilled = 0;
    uint64_t residentFirst = 0;
    int32_t count = 0;
    Objects first{};
    for (int go = 1; go <= goes; ++go) {
        std::optional<MatchList> matches = engine.Index().FindMatch(word);
        if (!matches) {
            throw Error("No match for " + word + ".");
        }
        count = matches->Count();
        const double start = Now();
        const HWND form = ShowMatches(word, std::move(*matches), engine.Host());
        HandleAllMessages();
        if (go == 1) {
            fill = Now() - start;
            // A user reads the window before clicking a header.
            for (const double shown = Now(); Now() - shown < 1.0; Sleep(10)) {
                HandleAllMessages();
            }
            residentFilled = ResidentBytes();
            const double sortStart = Now();
            ClickColumn(form, 0);
            HandleAllMessages();
            const double sortMiddle = Now();
            ClickColumn(form, 1);
            HandleAllMessages();
            const double sortEnd = Now();
            ClickColumn(form, 0);
            HandleAllMessages();
            sortName = sortMiddle - sortStart;
            sortLocation = sortEnd - sortMiddle;
            sortAgain = Now() - sortEnd;
        } else if (go == 2) {
            const double sortStart = Now();
            ClickColumn(form, 0);
            HandleAllMessages();
            sortAtOnce = Now() - sortStart;
        }
        DestroyWindow(form);
        HandleAllMessages();
        if (go == 1) {
            first = CountObjects();
            residentFirst = ResidentBytes();
        }
    }
    const Objects last = CountObjects();
    std::printf(
        "{\"matches\": %d, \"fill_seconds\": %.4f, \"sort_name_seconds\": %.4f, "
        "\"sort_location_seconds\": %.4f, \"sort_name_again_seconds\": %.4f, "
        "\"sort_name_at_once_seconds\": %.4f, "
        "\"window_bytes\": %lld, \"gdi_first\": %lu, \"gdi_last\": %lu, \"user_first\": %lu, "
        "\"user_last\": %lu, \"windows_first\": %d, \"windows_last\": %d, "
        "\"resident_after_first_bytes\": "
        "%lld, \"resident_after_last_bytes\": %lld}\n",
        count, fill, sortName, sortLocation, sortAgain, sortAtOnce,
        static_cast<long long>(residentFilled) - static_cast<long long>(residentBefore), first.gdi,
        last.gdi, first.user, last.user, first.windows, last.windows,
        static_cast<long long>(residentFirst) - static_cast<long long>(residentBefore),
        static_cast<long long>(ResidentBytes()) - static_cast<long long>(residentBefore));
    return 0;
}

int Icons(const std::string& folder, const std::string& word) {
    Engine engine(folder);
    const std::optional<MatchList> matches = engine.Index().FindMatch(word);
    if (!matches) {
        throw Error("No match for " + word + ".");
    }
    const UniqueImageList list(ImageList_Create(16, 16, ILC_COLOR32 | ILC_MASK, 0, 8));
    ctlIconExtractor extractor;
    extractor.ImageListLarge(list.get());
    const double start = Now();
    for (int32_t position = 1; position <= matches->Count(); ++position) {
        const clsItem item = matches->Item(position);
        extractor.RetrieveFileIcon(item.Filename, engine.Index().GetPath(item.Directory));
    }
    std::printf("{\"matches\": %d, \"icon_seconds\": %.4f}\n", matches->Count(), Now() - start);
    return 0;
}

// The main window's search bar as a test sees it: a shown progress bar, set through PacedProgress
// as the main window sets it, or at every value as it once was.
class BarProgress final : public SearchProgress {
  public:
    BarProgress(HWND bar, bool paced) : bar_(bar), paced_(paced) {}
    void Show(int maximum) override {
        pace_.Start(bar_, maximum);
        ShowWindow(bar_, SW_SHOW);
    }
    void SetValue(int value) override {
        if (paced_) {
            pace_.Set(bar_, value);
        } else {
            SendMessageW(bar_, PBM_SETPOS, static_cast<WPARAM>(value), 0);
        }
    }
    void Hide() override { ShowWindow(bar_, SW_HIDE); }

  private:
    HWND bar_;
    bool paced_;
    PacedProgress pace_;
};

double MedianSeconds(int runs, const std::function<void()>& work) {
    std::vector<double> times;
    for (int run = 0; run < runs; ++run) {
        const double start = Now();
        work();
        times.push_back(Now() - start);
        HandleAllMessages();
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

int Search(const std::string& folder, const std::string& word, int runs) {
    Engine engine(folder);
    const HWND frame = CreateWindowExW(0, L"STATIC", L"Search", WS_OVERLAPPEDWINDOW | WS_VISIBLE,
                                       100, 100, 400, 120, nullptr, nullptr, nullptr, nullptr);
    const HWND bar = CreateWindowExW(0, PROGRESS_CLASSW, L"", WS_CHILD, 10, 40, 360, 16, frame,
                                     nullptr, nullptr, nullptr);
    HandleAllMessages();
    BarProgress paced(bar, true);
    BarProgress everyValue(bar, false);
    const double alone = MedianSeconds(runs, [&] { engine.Index().FindMatch(word); });
    const double withPaced = MedianSeconds(runs, [&] { engine.Index().FindMatch(word, &paced); });
    const double withEvery =
        MedianSeconds(runs, [&] { engine.Index().FindMatch(word, &everyValue); });
    DestroyWindow(frame);
    std::printf(
        "{\"records\": %d, \"search_seconds\": %.4f, \"paced_bar_seconds\": %.4f, "
        "\"bar_every_value_seconds\": %.4f}\n",
        engine.Index().ItemCount(), alone, withPaced, withEvery);
    return 0;
}

double SecondsSince1970() {
    FILETIME now{};
    GetSystemTimePreciseAsFileTime(&now);
    const ULONGLONG ticks = (static_cast<ULONGLONG>(now.dwHighDateTime) << 32) | now.dwLowDateTime;
    constexpr ULONGLONG kTicksTo1970 = 116444736000000000ULL;  // 100 ns ticks from 1601
    return static_cast<double>(ticks - kTicksTo1970) / 1e7;
}

// The window's thread handles sent messages only between its own, so the first answer comes once
// the work that the key started is done; then what that work left to paint is painted, in that
// thread, before RedrawWindow returns. The window asked for may be there already (the main
// window, when one match opens without a window of its own): the key is given a moment to
// arrive first.
int Answer(const std::string& title, const std::string& signal, const std::string& out) {
    constexpr DWORD kPatience = 600000;
    std::FILE* file = std::fopen(out.c_str(), "w");
    if (file == nullptr) {
        throw Error("Cannot write " + out + ".");
    }
    std::fprintf(file, "ready\n");
    std::fflush(file);
    const std::wstring signalPath(signal.begin(), signal.end());
    while (GetFileAttributesW(signalPath.c_str()) == INVALID_FILE_ATTRIBUTES) {
        Sleep(1);
    }
    const std::wstring wideTitle(title.begin(), title.end());
    if (FindWindowW(nullptr, wideTitle.c_str()) != nullptr) {
        Sleep(50);
    }
    HWND window = nullptr;
    for (DWORD waited = 0; window == nullptr && waited < kPatience; ++waited) {
        window = FindWindowW(nullptr, wideTitle.c_str());
        if (window == nullptr) {
            Sleep(1);
        }
    }
    DWORD_PTR result = 0;
    SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_NORMAL, kPatience, &result);
    RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_NORMAL, kPatience, &result);
    std::fprintf(file, "%.3f\n", SecondsSince1970());
    std::fclose(file);
    return 0;
}

int Run(const std::vector<std::string>& args) {
    const auto command = args.empty() ? std::string() : args[0];
    if (command == "matches" && args.size() == 4) {
        return Matches(args[1], args[2], std::atoi(args[3].c_str()));
    }
    if (command == "search" && args.size() == 4) {
        return Search(args[1], args[2], std::atoi(args[3].c_str()));
    }
    if (command == "icons" && args.size() == 3) {
        return Icons(args[1], args[2]);
    }
    if (command == "answer" && args.size() == 4) {
        return Answer(args[1], args[2], args[3]);
    }
    std::fprintf(stderr,
                 "usage: quorin-bench-ui matches FOLDER WORD GOES | search FOLDER WORD RUNS |\n"
                 "       icons FOLDER WORD |\n"
                 "       answer TITLE SIGNAL OUT\n");
    return 2;
}

}  // namespace
}  // namespace quorin::bench

int main(int argc, char** argv) {
    INITCOMMONCONTROLSEX controls{sizeof controls, ICC_LISTVIEW_CLASSES | ICC_PROGRESS_CLASS};
    InitCommonControlsEx(&controls);
    try {
        return quorin::bench::Run(std::vector<std::string>(argv + 1, argv + argc));
    } catch (const quorin::Error& e) {
        std::fprintf(stderr, "quorin-bench-ui: %s\n", e.what());
        return 1;
    }
}
