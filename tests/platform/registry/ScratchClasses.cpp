#include "platform/registry/ScratchClasses.h"

#include "platform/Text.h"

#include <sddl.h>

#include <algorithm>
#include <memory>
#include <stdexcept>

namespace quorin {
namespace {

constexpr wchar_t kUserClasses[] = L"Software\\Classes\\";

// Null when the key cannot be created.
UniqueKey CreatedKey(HKEY root, const std::wstring& name) {
    HKEY key = nullptr;
    const bool created = RegCreateKeyExW(root, name.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                                         KEY_ALL_ACCESS, nullptr, &key, nullptr) == ERROR_SUCCESS;
    return UniqueKey(created ? key : nullptr);
}

bool ClassesRootShowsUserClasses() {
    static const bool shows = [] {
        const std::wstring probe = L".quorin-merge-probe";
        if (!CreatedKey(HKEY_CURRENT_USER, kUserClasses + probe)) {
            return false;
        }
        HKEY key = nullptr;
        const bool found =
            RegOpenKeyExW(HKEY_CLASSES_ROOT, probe.c_str(), 0, KEY_READ, &key) == ERROR_SUCCESS;
        const UniqueKey closer(found ? key : nullptr);
        RegDeleteTreeW(HKEY_CURRENT_USER, (kUserClasses + probe).c_str());
        return found;
    }();
    return shows;
}

// Everyone gets `rights` ("KR" to read, "KA" for all) and nothing more. Failures show in the
// tests, which check the access they meant to set.
void SetAccess(HKEY root, const std::wstring& name, const std::wstring& rights) {
    HKEY key = nullptr;
    if (RegOpenKeyExW(root, name.c_str(), 0, WRITE_DAC, &key) != ERROR_SUCCESS) {
        return;
    }
    const UniqueKey closer(key);
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    if (ConvertStringSecurityDescriptorToSecurityDescriptorW(
            (L"D:(A;;" + rights + L";;;WD)").c_str(), SDDL_REVISION_1, &descriptor, nullptr)) {
        const std::unique_ptr<void, HLOCAL (*)(HLOCAL)> freer(descriptor, LocalFree);
        RegSetKeySecurity(key, DACL_SECURITY_INFORMATION, descriptor);
    }
}

}  // namespace

ScratchClasses::ScratchClasses()
    : root_(ClassesRootShowsUserClasses() ? HKEY_CURRENT_USER : HKEY_CLASSES_ROOT),
      prefix_(root_ == HKEY_CURRENT_USER ? kUserClasses : L"") {}

ScratchClasses::~ScratchClasses() {
    for (const std::string& key : readOnlyKeys_) {
        SetAccess(root_, FullName(key), L"KA");
    }
    for (const std::string& key : topKeys_) {
        RegDeleteTreeW(root_, FullName(key).c_str());
    }
}

void ScratchClasses::SetValue(const std::string& key, const std::string& name, DWORD type,
                              const void* data, DWORD size) {
    const UniqueKey opened = Create(key);
    RegSetValueExW(opened.get(), Widen(name).c_str(), 0, type, static_cast<const BYTE*>(data),
                   size);
}

void ScratchClasses::SetText(const std::string& key, const std::string& name,
                             const std::string& text, DWORD type) {
    const std::wstring wide = Widen(text);
    SetValue(key, name, type, wide.c_str(),
             static_cast<DWORD>((wide.size() + 1) * sizeof(wchar_t)));
}

void ScratchClasses::CreateKey(const std::string& key) {
    Create(key);
}

void ScratchClasses::RegisterType(const std::string& ext, const std::string& fileType,
                                  const std::string& description, const std::string& iconLocation) {
    SetText(ext, "", fileType);
    SetText(fileType, "", description);
    if (!iconLocation.empty()) {
        SetText(fileType + "\\DefaultIcon", "", iconLocation);
    }
}

void ScratchClasses::MakeReadOnly(const std::string& key) {
    SetAccess(root_, FullName(key), L"KR");
    readOnlyKeys_.push_back(key);
}

UniqueKey ScratchClasses::Create(const std::string& key) {
    const std::string top = key.substr(0, key.find('\\'));
    if (std::find(topKeys_.begin(), topKeys_.end(), top) == topKeys_.end()) {
        topKeys_.push_back(top);
    }
    UniqueKey created = CreatedKey(root_, FullName(key));
    if (!created) {
        throw std::runtime_error("cannot create the scratch key " + key);
    }
    return created;
}

std::wstring ScratchClasses::FullName(const std::string& key) const {
    return prefix_ + Widen(key);
}

}  // namespace quorin
