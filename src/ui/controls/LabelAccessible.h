#pragma once

#include <windows.h>

#include <oleacc.h>
#include <wrl/client.h>

#include <atomic>
#include <string_view>

namespace quorin {

class LabelWindow;

// What a kind of label is to a screen reader: its role, the name of its default action, and
// the states it has besides those every label shows (focusable, focused, selected, unavailable,
// invisible).
struct LabelRole {
    long role;
    std::wstring_view defaultAction;
    long states;
};

// The IAccessible of a tab or link label, which the program draws itself: the caption is the
// name, the label's window gives the states and the place, and the default action clicks the
// label. A reader may hold the object after the label's window is gone: the label disconnects
// it first, and every call then fails with CO_E_OBJNOTCONNECTED.
// COM interfaces have no virtual destructor by design: Release is the only way to delete.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"
class LabelAccessible final : public IAccessible {
  public:
    // Use Make; public for make_unique.
    LabelAccessible(LabelWindow& label, LabelRole role) : label_(&label), role_(role) {}
    ~LabelAccessible() = default;
    LabelAccessible(const LabelAccessible&) = delete;
    LabelAccessible& operator=(const LabelAccessible&) = delete;

    static Microsoft::WRL::ComPtr<LabelAccessible> Make(LabelWindow& label, LabelRole role);
    void Disconnect() { label_ = nullptr; }

    // IUnknown
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override;
    ULONG STDMETHODCALLTYPE AddRef() override;
    ULONG STDMETHODCALLTYPE Release() override;

    // IDispatch: readers call IAccessible directly; there is no type information.
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo** info) override;
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                                     UINT*) override;

    // IAccessible
    HRESULT STDMETHODCALLTYPE get_accParent(IDispatch** parent) override;
    HRESULT STDMETHODCALLTYPE get_accChildCount(long* count) override;
    HRESULT STDMETHODCALLTYPE get_accChild(VARIANT child, IDispatch** object) override;
    HRESULT STDMETHODCALLTYPE get_accName(VARIANT child, BSTR* name) override;
    HRESULT STDMETHODCALLTYPE get_accValue(VARIANT child, BSTR* value) override;
    HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT child, BSTR* description) override;
    HRESULT STDMETHODCALLTYPE get_accRole(VARIANT child, VARIANT* role) override;
    HRESULT STDMETHODCALLTYPE get_accState(VARIANT child, VARIANT* state) override;
    HRESULT STDMETHODCALLTYPE get_accHelp(VARIANT child, BSTR* help) override;
    HRESULT STDMETHODCALLTYPE get_accHelpTopic(BSTR* file, VARIANT child, long* topic) override;
    HRESULT STDMETHODCALLTYPE get_accKeyboardShortcut(VARIANT child, BSTR* shortcut) override;
    HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT* focus) override;
    HRESULT STDMETHODCALLTYPE get_accSelection(VARIANT* selection) override;
    HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT child, BSTR* action) override;
    HRESULT STDMETHODCALLTYPE accSelect(long flags, VARIANT child) override;
    HRESULT STDMETHODCALLTYPE accLocation(long* left, long* top, long* width, long* height,
                                          VARIANT child) override;
    HRESULT STDMETHODCALLTYPE accNavigate(long direction, VARIANT start, VARIANT* end) override;
    HRESULT STDMETHODCALLTYPE accHitTest(long x, long y, VARIANT* child) override;
    HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT child) override;
    HRESULT STDMETHODCALLTYPE put_accName(VARIANT, BSTR) override;
    HRESULT STDMETHODCALLTYPE put_accValue(VARIANT, BSTR) override;

  private:
    // S_OK when `child` names the label itself and the label is still there.
    HRESULT Check(const VARIANT& child) const;
    // The label itself in `child` when `self`, else nothing (S_FALSE).
    static HRESULT SelfOrEmpty(bool self, VARIANT* child);

    std::atomic<ULONG> references_{1};
    LabelWindow* label_;
    LabelRole role_;
};
#pragma GCC diagnostic pop

}  // namespace quorin
