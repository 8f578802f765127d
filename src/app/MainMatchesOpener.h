#pragma once

#include <windows.h>

#include <functional>

#include "index/LazyIndex.h"
#include "platform/Prompter.h"
#include "platform/SettingsStore.h"
#include "platform/Shell.h"
#include "ui/main/MatchesOpener.h"

namespace quorin {

// Hands several matches to the "Multiple Matches" window.
class MainMatchesOpener final : public MatchesOpener {
  public:
    MainMatchesOpener(LazyIndex& index, Shell& shell, SettingsStore& settings, Prompter& prompter)
        : index_(index), shell_(shell), settings_(settings), prompter_(prompter) {}

    // The main window's word list, refreshed after the user assigns a word there.
    void SetAddWords(std::function<void()> addWords) { addWords_ = std::move(addWords); }
    void SetIcon(HICON icon) { icon_ = icon; }

    void ShowMatches(const std::string& word, const MatchList& matches) override;

  private:
    LazyIndex& index_;
    Shell& shell_;
    SettingsStore& settings_;
    Prompter& prompter_;
    std::function<void()> addWords_;
    HICON icon_ = nullptr;
};

}  // namespace quorin
