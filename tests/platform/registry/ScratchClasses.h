#pragma once

#include "platform/WinHandles.h"

#include <windows.h>

#include <string>
#include <vector>

namespace quorin {

// Keys below the classes root made for one test or demo and removed again at its end. They go
// under the per-user classes, which Windows merges into the classes root; where the system does
// not merge them (Wine), straight into the classes root.
class ScratchClasses {
  public:
    ScratchClasses();
    ~ScratchClasses();
    ScratchClasses(const ScratchClasses&) = delete;
    ScratchClasses& operator=(const ScratchClasses&) = delete;

    // Creates `key` as needed and stores one value in it, bytes as the registry keeps them.
    void SetValue(const std::string& key, const std::string& name, DWORD type, const void* data,
                  DWORD size);
    void SetText(const std::string& key, const std::string& name, const std::string& text,
                 DWORD type = REG_SZ);
    void CreateKey(const std::string& key);

    // `ext` names `fileType`, whose default value is `description` and whose "DefaultIcon" is
    // `iconLocation` (no "DefaultIcon" key when that is empty).
    void RegisterType(const std::string& ext, const std::string& fileType,
                      const std::string& description, const std::string& iconLocation);

    // Everyone may only read the key, as a standard user may the machine's file types.
    void MakeReadOnly(const std::string& key);

  private:
    UniqueKey Create(const std::string& key);
    std::wstring FullName(const std::string& key) const;

    HKEY root_;
    std::wstring prefix_;
    std::vector<std::string> topKeys_;
    std::vector<std::string> readOnlyKeys_;
};

}  // namespace quorin
