// quorin-bench: the engine's side of scripts/bench, timed inside the process, so that the figures
// of the Windows build under Wine do not include Wine's start-up.
//   quorin-bench load FOLDER                    read FOLDER/index.txt once (timed from outside)
//   quorin-bench loadtimes FOLDER RUNS          read it RUNS times
//   quorin-bench memory FOLDER                  resident bytes added by reading it
//   quorin-bench lookup FOLDER WORD RUNS        FindMatch of WORD, RUNS times
//   quorin-bench find FOLDER WORD               the matching names, one per LF line
//   quorin-bench walk SETTINGS                  the folder walk of a build, not saved (timed
//                                               from outside)
//   quorin-bench read ROOT                      every folder under ROOT opened, read and closed
//                                               in the walk's order, nothing indexed
//   quorin-bench build FOLDER SETTINGS RUNS     a silent build and save with an INI file
// Each timing command prints one JSON object: medians in seconds of the wall clock and of the
// CPU time.
#include "ProcessStats.h"
#include "Timing.h"

#include "cli/ConsolePrompter.h"
#include "cli/IdleEventPump.h"
#include "cli/SilentBuildProgress.h"
#include "index/FolderWalker.h"
#include "index/IndexSettings.h"
#include "index/clsIndex.h"
#include "platform/Clock.h"
#include "platform/Errors.h"
#include "platform/IniSettingsStore.h"
#include "platform/MemorySettingsStore.h"
#include "platform/Path.h"

#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

namespace quorin::bench {
namespace {

// Stands for the main window's progress bar, so that a timed lookup pays for its updates too.
class CountingProgress final : public SearchProgress {
  public:
    void Show(int maximum) override { maximum_ = maximum; }
    void SetValue(int value) override { value_ = value; }
    void Hide() override {}

  private:
    int maximum_ = 0;
    int value_ = 0;
};

// An engine over a program folder, with the settings of an INI file or defaults.
class Engine {
  public:
    Engine(const std::string& folder, std::unique_ptr<SettingsStore> settings)
        : settings_(std::move(settings)),
          index_(IndexServices{*settings_, clock_, prompter_, events_, folder}) {}

    clsIndex& Index() { return index_; }

  private:
    std::unique_ptr<SettingsStore> settings_;
    SystemClock clock_;
    ConsolePrompter prompter_{std::cerr};
    IdleEventPump events_;
    clsIndex index_;
};

// "AllFolders", so that an index of any folder count loads.
std::unique_ptr<Engine> OpenEngine(const std::string& folder) {
    auto settings = std::make_unique<MemorySettingsStore>();
    settings->Save("Index", "AllFolders", "True");
    return std::make_unique<Engine>(folder, std::move(settings));
}

void PrintTimings(const Timings& timings, const char* countName, long long count) {
    std::printf("{\"wall_seconds\": %.6f, \"cpu_seconds\": %.6f, \"%s\": %lld}\n", timings.wall,
                timings.cpu, countName, count);
}

int Load(const std::string& folder) {
    const auto engine = OpenEngine(folder);
    std::printf("{\"records\": %d}\n", engine->Index().ItemCount());
    return 0;
}

int LoadTimes(const std::string& folder, int runs) {
    int records = 0;
    const Timings timings =
        TimeRuns(runs, [&] { records = OpenEngine(folder)->Index().ItemCount(); });
    PrintTimings(timings, "records", records);
    return 0;
}

int Memory(const std::string& folder) {
    const uint64_t before = ResidentBytes();
    const auto engine = OpenEngine(folder);
    const uint64_t after = ResidentBytes();
    std::printf("{\"added_bytes\": %llu, \"records\": %d}\n",
                static_cast<unsigned long long>(after - before), engine->Index().ItemCount());
    return 0;
}

int Lookup(const std::string& folder, const std::string& word, int runs) {
    const auto engine = OpenEngine(folder);
    CountingProgress progress;
    long long matches = 0;
    const Timings timings = TimeRuns(runs, [&] {
        const auto found = engine->Index().FindMatch(word, &progress);
        matches = found ? found->Count() : 0;
    });
    PrintTimings(timings, "matches", matches);
    return 0;
}

int Find(const std::string& folder, const std::string& word) {
    const auto engine = OpenEngine(folder);
    const auto found = engine->Index().FindMatch(word);
    std::string text;
    for (int32_t position = 1; found && position <= found->Count(); ++position) {
        text += found->Item(position).Filename;
        text += '\n';
    }
    std::fwrite(text.data(), 1, text.size(), stdout);
    return 0;
}

int Build(const std::string& folder, const std::string& settings, int runs) {
    Engine engine(folder, std::make_unique<IniSettingsStore>(settings));
    SilentBuildProgress window;
    const Timings timings = TimeRuns(runs, [&] { engine.Index().CreateIndex(true, window); });
    PrintTimings(timings, "records", engine.Index().ItemCount());
    return 0;
}

// The build without its save: the folder walk as CreateIndex runs it, minus the progress.
int Walk(const std::string& settingsPath) {
    const IniSettingsStore settings(settingsPath);
    WalkOptions options;
    int32_t interval = 0;
    DriveTable drives;
    bool allFolders = false;
    ReadIndexSettings(settings, IndexSettingsFields{options.filter, options.filterIsInclude,
                                                    interval, options.includeSystemFolders,
                                                    options.ignoreTempFolders, drives, allFolders});
    FolderTable folders(allFolders);
    IndexItems items;
    for (int32_t drive = 0; drive < drives.count; ++drive) {
        folders.Append(drives.slots[static_cast<size_t>(drive)]);
    }
    FolderWalker walker(options, folders, items);
    for (int32_t slot = 0; slot < folders.Count(); ++slot) {
        walker.Walk(slot);
    }
    std::printf("{\"folders\": %d, \"records\": %d}\n", folders.Count(), items.Count());
    return 0;
}

// The part of a walk that is the system's: the same folders listed in the same order, and only
// the queue of folders kept.
int Read(const std::string& root) {
    std::vector<std::string> queue = {root};
    FolderLister lister;
    for (size_t at = 0; at < queue.size(); ++at) {
        const std::string folder = queue[at];
        lister.List(folder, true, [&](std::string_view name, bool isFolder) {
            if (isFolder) {
                queue.push_back(JoinPath(folder, name));
            }
        });
    }
    std::printf("{\"folders\": %zu}\n", queue.size());
    return 0;
}

int Run(const std::vector<std::string>& args) {
    const auto command = args.empty() ? std::string() : args[0];
    const auto number = [&](size_t i) { return std::atoi(args[i].c_str()); };
    if (command == "load" && args.size() == 2) {
        return Load(args[1]);
    }
    if (command == "loadtimes" && args.size() == 3) {
        return LoadTimes(args[1], number(2));
    }
    if (command == "memory" && args.size() == 2) {
        return Memory(args[1]);
    }
    if (command == "lookup" && args.size() == 4) {
        return Lookup(args[1], args[2], number(3));
    }
    if (command == "find" && args.size() == 3) {
        return Find(args[1], args[2]);
    }
    if (command == "walk" && args.size() == 2) {
        return Walk(args[1]);
    }
    if (command == "read" && args.size() == 2) {
        return Read(args[1]);
    }
    if (command == "build" && args.size() == 4) {
        return Build(args[1], args[2], number(3));
    }
    std::fprintf(stderr,
                 "usage: quorin-bench load|memory FOLDER | loadtimes FOLDER RUNS |\n"
                 "       lookup FOLDER WORD RUNS | find FOLDER WORD | walk SETTINGS | read ROOT |\n"
                 "       build FOLDER SETTINGS RUNS\n");
    return 2;
}

}  // namespace
}  // namespace quorin::bench

int main(int argc, char** argv) {
    try {
        return quorin::bench::Run(std::vector<std::string>(argv + 1, argv + argc));
    } catch (const quorin::Error& e) {
        std::fprintf(stderr, "quorin-bench: %s\n", e.what());
        return 1;
    }
}
