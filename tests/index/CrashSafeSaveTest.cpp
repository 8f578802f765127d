#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include <sys/wait.h>
#include <unistd.h>

#include "EngineFixture.h"
#include "platform/TextFile.h"

namespace quorin {
namespace {

// "index.txt" and "words.txt" are saved by a child process that is killed at random moments;
// whatever moment it dies in, each file must be exactly one of the versions it was writing. Few
// files, since creating files is slow on a busy disk, but long names, so that a save of either
// file takes long enough to be killed in the middle.
class CrashSafeSave : public EngineFixture {
  protected:
    void SetUp() override {
        UseRoots({"root"});
        for (int file = 0; file < 200; ++file) {
            tree.WriteFile("root/folder " + std::to_string(file % 4) + "/file " +
                               std::to_string(file / 4) + std::string(100, 'x') + ".txt",
                           "");
        }
    }

    static void AssignWords(clsIndex& index, int count) {
        index.Words() = clsItems();
        for (int i = 0; i < count; ++i) {
            const std::string word = "word" + std::to_string(i);
            index.Words().Add("file " + std::to_string(i % 50) + std::string(1000, 'y') + ".txt",
                              1 + i % 4, word, word);
        }
    }
};

TEST_F(CrashSafeSave, KilledSavesLeaveOneWholeVersionOfEachFile) {
    const auto index = MakeIndex();
    index->CreateIndex(true, ui);
    const std::string indexText = ReadWholeFile(ProgramFile("index.txt"));
    ASSERT_GT(indexText.size(), 20000u);
    std::vector<std::string> words;
    for (const int count : {150, 250}) {
        AssignWords(*index, count);
        index->SaveWords();
        words.push_back(ReadWholeFile(ProgramFile("words.txt")));
    }
    // Every other child rebuilds the index, the others save two sets of words in turn. Each
    // tells the parent before its first save and after each one, and is killed with SIGKILL at a
    // random part of the time one save took, so that the kills fall on every step of a save
    // however fast or slow the machine is.
    std::mt19937 random(7);
    std::uniform_real_distribution<double> part(0, 1);
    for (int child = 0; child < 100; ++child) {
        int pipeEnds[2];
        ASSERT_EQ(pipe(pipeEnds), 0);
        const pid_t pid = fork();
        ASSERT_GE(pid, 0);
        if (pid == 0) {
            alarm(60);  // never outlive a parent that failed to kill
            close(pipeEnds[0]);
            try {
                for (int round = 0;; ++round) {
                    [[maybe_unused]] const auto sent = write(pipeEnds[1], "s", 1);
                    if (child % 2 == 0) {
                        index->CreateIndex(true, ui);
                    } else {
                        AssignWords(*index, round % 2 == 0 ? 150 : 250);
                        index->SaveWords();
                    }
                }
            } catch (...) {
            }
            _exit(3);
        }
        close(pipeEnds[1]);
        char signal[2] = {};
        const bool started = read(pipeEnds[0], &signal[0], 1) == 1;
        const auto start = std::chrono::steady_clock::now();
        const bool savedOnce = started && read(pipeEnds[0], &signal[1], 1) == 1;
        std::this_thread::sleep_for((std::chrono::steady_clock::now() - start) * part(random));
        kill(pid, SIGKILL);
        close(pipeEnds[0]);
        int status = 0;
        waitpid(pid, &status, 0);
        ASSERT_TRUE(savedOnce && WIFSIGNALED(status)) << "the saver stopped by itself: " << status;

        const std::string savedIndex = ReadWholeFile(ProgramFile("index.txt"));
        const std::string savedWords = ReadWholeFile(ProgramFile("words.txt"));
        ASSERT_TRUE(savedIndex == indexText) << "after kill " << child << ": " << savedIndex.size();
        ASSERT_TRUE(savedWords == words[0] || savedWords == words[1])
            << "after kill " << child << ": " << savedWords.size() << " bytes";
    }
}

}  // namespace
}  // namespace quorin
