#include "ui/controls/LabelAccessible.h"

#include <memory>
#include <string>

#include "platform/Text.h"
#include "ui/controls/LabelWindow.h"

namespace quorin {

namespace {

HRESULT TextResult(std::wstring_view text, BSTR* out) {
    if (out == nullptr) {
        return E_POINTER;
    }
    *out = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
    return *out != nullptr ? S_OK : E_OUTOFMEMORY;
}

// What a label does not have (a value, a description, help): no text, and S_FALSE.
HRESULT NoText(BSTR* out) {
    if (out == nullptr) {
        return E_POINTER;
    }
    *out = nullptr;
    return S_FALSE;
}

HRESULT NumberResult(long number, VARIANT* out) {
    if (out == nullptr) {
        return E_POINTER;
    }
    VariantInit(out);
    out->vt = VT_I4;
    out->lVal = number;
    return S_OK;
}

}  // namespace

Microsoft::WRL::ComPtr<LabelAccessible> LabelAccessible::Make(LabelWindow& label, LabelRole role) {
    Microsoft::WRL::ComPtr<LabelAccessible> accessible;
    accessible.Attach(std::make_unique<LabelAccessible>(label, role).release());
    return accessible;
}

HRESULT LabelAccessible::QueryInterface(REFIID iid, void** object) {
    if (object == nullptr) {
        return E_POINTER;
    }
    if (iid == IID_IUnknown || iid == IID_IDispatch || iid == IID_IAccessible) {
        *object = static_cast<IAccessible*>(this);
        AddRef();
        return S_OK;
    }
    *object = nullptr;
    return E_NOINTERFACE;
}

ULONG LabelAccessible::AddRef() {
    return ++references_;
}

ULONG LabelAccessible::Release() {
    const ULONG left = --references_;
    if (left == 0) {
        std::unique_ptr<LabelAccessible> last(this);
    }
    return left;
}

HRESULT LabelAccessible::GetTypeInfoCount(UINT* count) {
    if (count == nullptr) {
        return E_POINTER;
    }
    *count = 0;
    return S_OK;
}

HRESULT LabelAccessible::GetTypeInfo(UINT, LCID, ITypeInfo** info) {
    if (info != nullptr) {
        *info = nullptr;
    }
    return E_NOTIMPL;
}

HRESULT LabelAccessible::GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) {
    return E_NOTIMPL;
}

HRESULT LabelAccessible::Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                                UINT*) {
    return E_NOTIMPL;
}

HRESULT LabelAccessible::get_accParent(IDispatch** parent) {
    if (parent == nullptr) {
        return E_POINTER;
    }
    *parent = nullptr;
    if (label_ == nullptr) {
        return CO_E_OBJNOTCONNECTED;
    }
    // The system's object for the label's window, as for any control.
    return AccessibleObjectFromWindow(label_->hwnd(), static_cast<DWORD>(OBJID_WINDOW),
                                      IID_IDispatch, reinterpret_cast<void**>(parent));
}

HRESULT LabelAccessible::get_accChildCount(long* count) {
    if (count == nullptr) {
        return E_POINTER;
    }
    *count = 0;
    return label_ != nullptr ? S_OK : CO_E_OBJNOTCONNECTED;
}

HRESULT LabelAccessible::get_accChild(VARIANT, IDispatch** object) {
    if (object == nullptr) {
        return E_POINTER;
    }
    *object = nullptr;
    return label_ != nullptr ? E_INVALIDARG : CO_E_OBJNOTCONNECTED;
}

HRESULT LabelAccessible::get_accName(VARIANT child, BSTR* name) {
    const HRESULT checked = Check(child);
    return checked != S_OK ? checked : TextResult(Widen(label_->Caption()), name);
}

HRESULT LabelAccessible::get_accValue(VARIANT child, BSTR* value) {
    const HRESULT checked = Check(child);
    return checked != S_OK ? checked : NoText(value);
}

HRESULT LabelAccessible::get_accDescription(VARIANT child, BSTR* description) {
    const HRESULT checked = Check(child);
    return checked != S_OK ? checked : NoText(description);
}

HRESULT LabelAccessible::get_accRole(VARIANT child, VARIANT* role) {
    const HRESULT checked = Check(child);
    return checked != S_OK ? checked : NumberResult(role_.role, role);
}

HRESULT LabelAccessible::get_accState(VARIANT child, VARIANT* state) {
    const HRESULT checked = Check(child);
    if (checked != S_OK) {
        return checked;
    }
    const HWND window = label_->hwnd();
    long states = role_.states | STATE_SYSTEM_FOCUSABLE;
    if (GetFocus() == window) {
        states |= STATE_SYSTEM_FOCUSED;
    }
    if (label_->Selected()) {
        states |= STATE_SYSTEM_SELECTED;
    }
    if (!label_->Enabled()) {
        states |= STATE_SYSTEM_UNAVAILABLE;
    }
    if (IsWindowVisible(window) == FALSE) {
        states |= STATE_SYSTEM_INVISIBLE;
    }
    return NumberResult(states, state);
}

HRESULT LabelAccessible::get_accHelp(VARIANT child, BSTR* help) {
    const HRESULT checked = Check(child);
    return checked != S_OK ? checked : NoText(help);
}

HRESULT LabelAccessible::get_accHelpTopic(BSTR* file, VARIANT child, long* topic) {
    if (topic == nullptr) {
        return E_POINTER;
    }
    *topic = 0;
    const HRESULT checked = Check(child);
    return checked != S_OK ? checked : NoText(file);
}

HRESULT LabelAccessible::get_accKeyboardShortcut(VARIANT child, BSTR* shortcut) {
    const HRESULT checked = Check(child);
    return checked != S_OK ? checked : NoText(shortcut);
}

HRESULT LabelAccessible::get_accFocus(VARIANT* focus) {
    if (label_ == nullptr) {
        return CO_E_OBJNOTCONNECTED;
    }
    return SelfOrEmpty(GetFocus() == label_->hwnd(), focus);
}

HRESULT LabelAccessible::get_accSelection(VARIANT* selection) {
    if (label_ == nullptr) {
        return CO_E_OBJNOTCONNECTED;
    }
    return SelfOrEmpty(false, selection);
}

HRESULT LabelAccessible::get_accDefaultAction(VARIANT child, BSTR* action) {
    const HRESULT checked = Check(child);
    return checked != S_OK ? checked : TextResult(role_.defaultAction, action);
}

HRESULT LabelAccessible::accSelect(long flags, VARIANT child) {
    const HRESULT checked = Check(child);
    if (checked != S_OK) {
        return checked;
    }
    if (flags != SELFLAG_TAKEFOCUS) {
        return DISP_E_MEMBERNOTFOUND;
    }
    return SetFocus(label_->hwnd()) != nullptr || GetFocus() == label_->hwnd() ? S_OK : E_FAIL;
}

HRESULT LabelAccessible::accLocation(long* left, long* top, long* width, long* height,
                                     VARIANT child) {
    if (left == nullptr || top == nullptr || width == nullptr || height == nullptr) {
        return E_POINTER;
    }
    const HRESULT checked = Check(child);
    if (checked != S_OK) {
        return checked;
    }
    RECT place{};
    GetWindowRect(label_->hwnd(), &place);
    *left = place.left;
    *top = place.top;
    *width = place.right - place.left;
    *height = place.bottom - place.top;
    return S_OK;
}

HRESULT LabelAccessible::accNavigate(long, VARIANT start, VARIANT* end) {
    if (end == nullptr) {
        return E_POINTER;
    }
    VariantInit(end);
    // No children; the siblings are the parent window's to walk.
    const HRESULT checked = Check(start);
    return checked != S_OK ? checked : S_FALSE;
}

HRESULT LabelAccessible::accHitTest(long x, long y, VARIANT* child) {
    if (label_ == nullptr) {
        return CO_E_OBJNOTCONNECTED;
    }
    RECT place{};
    GetWindowRect(label_->hwnd(), &place);
    return SelfOrEmpty(PtInRect(&place, POINT{x, y}) != FALSE, child);
}

HRESULT LabelAccessible::accDoDefaultAction(VARIANT child) {
    const HRESULT checked = Check(child);
    if (checked != S_OK) {
        return checked;
    }
    if (!label_->Enabled()) {
        return E_FAIL;
    }
    label_->DoDefaultAction();
    return S_OK;
}

HRESULT LabelAccessible::put_accName(VARIANT, BSTR) {
    return E_NOTIMPL;
}

HRESULT LabelAccessible::put_accValue(VARIANT, BSTR) {
    return E_NOTIMPL;
}

HRESULT LabelAccessible::Check(const VARIANT& child) const {
    if (label_ == nullptr) {
        return CO_E_OBJNOTCONNECTED;
    }
    return child.vt == VT_I4 && child.lVal == CHILDID_SELF ? S_OK : E_INVALIDARG;
}

HRESULT LabelAccessible::SelfOrEmpty(bool self, VARIANT* child) {
    if (child == nullptr) {
        return E_POINTER;
    }
    if (self) {
        return NumberResult(CHILDID_SELF, child);
    }
    VariantInit(child);
    return S_FALSE;
}

}  // namespace quorin
