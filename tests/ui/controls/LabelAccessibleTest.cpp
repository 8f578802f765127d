#include <gtest/gtest.h>

#include <oleacc.h>
#include <wrl/client.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "TestWindows.h"
#include "platform/Text.h"
#include "ui/ComApartment.h"
#include "ui/MessagePump.h"
#include "ui/WindowText.h"
#include "ui/controls/ctlLinkLabel.h"
#include "ui/controls/ctlTabLabel.h"

namespace quorin {
namespace {

using Microsoft::WRL::ComPtr;

VARIANT Self() {
    VARIANT self{};
    self.vt = VT_I4;
    self.lVal = CHILDID_SELF;
    return self;
}

std::string Text(HRESULT (IAccessible::*get)(VARIANT, BSTR*), IAccessible& object) {
    BSTR text = nullptr;
    EXPECT_EQ((object.*get)(Self(), &text), S_OK);
    std::string result = text != nullptr ? Narrow(text) : "";
    SysFreeString(text);
    return result;
}

long Number(HRESULT (IAccessible::*get)(VARIANT, VARIANT*), IAccessible& object) {
    VARIANT number{};
    EXPECT_EQ((object.*get)(Self(), &number), S_OK);
    EXPECT_EQ(number.vt, VT_I4);
    return number.lVal;
}

class LabelAccessibleTest : public ::testing::Test {
  protected:
    void SetUp() override {
        go.SetSelected(true);
        previous.SetEnabled(false);
    }

    ComApartment apartment;
    test::TestParent parent;
    ctlTabLabel& go = ctlTabLabel::Create(parent.hwnd(), 1, "Go", 0, 0);
    ctlTabLabel& index = ctlTabLabel::Create(parent.hwnd(), 2, "Index", 60, 0);
    ctlLinkLabel& update = ctlLinkLabel::Create(parent.hwnd(), 3, "Update Index Now", 0, 40);
    ctlLinkLabel& previous = ctlLinkLabel::Create(parent.hwnd(), 4, "< Previous", 0, 60);
};

TEST_F(LabelAccessibleTest, EachLabelTellsItsRoleNameStatesAndDefaultAction) {
    SetFocus(index.hwnd());
    ASSERT_EQ(GetFocus(), index.hwnd());
    struct Row {
        LabelWindow& label;
        long role;
        const char* name;
        const char* action;
        long has;
        long hasNot;
    };
    const Row rows[] = {
        {go, ROLE_SYSTEM_PAGETAB, "Go", "Switch",
         STATE_SYSTEM_SELECTED | STATE_SYSTEM_SELECTABLE | STATE_SYSTEM_FOCUSABLE,
         STATE_SYSTEM_FOCUSED | STATE_SYSTEM_UNAVAILABLE},
        {index, ROLE_SYSTEM_PAGETAB, "Index", "Switch",
         STATE_SYSTEM_FOCUSED | STATE_SYSTEM_SELECTABLE | STATE_SYSTEM_FOCUSABLE,
         STATE_SYSTEM_SELECTED},
        {update, ROLE_SYSTEM_LINK, "Update Index Now", "Click",
         STATE_SYSTEM_LINKED | STATE_SYSTEM_FOCUSABLE,
         STATE_SYSTEM_FOCUSED | STATE_SYSTEM_SELECTED | STATE_SYSTEM_UNAVAILABLE},
        {previous, ROLE_SYSTEM_LINK, "< Previous", "Click", STATE_SYSTEM_UNAVAILABLE,
         STATE_SYSTEM_FOCUSED},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        IAccessible& object = *row.label.Accessible();
        EXPECT_EQ(Number(&IAccessible::get_accRole, object), row.role);
        EXPECT_EQ(Text(&IAccessible::get_accName, object), row.name);
        EXPECT_EQ(Text(&IAccessible::get_accDefaultAction, object), row.action);
        const long states = Number(&IAccessible::get_accState, object);
        EXPECT_EQ(states & row.has, row.has);
        EXPECT_EQ(states & row.hasNot, 0);
    }
    update.SetCaption("Cancel");
    EXPECT_EQ(Text(&IAccessible::get_accName, *update.Accessible()), "Cancel");
}

TEST_F(LabelAccessibleTest, WmGetObjectAnswersTheClientAreaThroughLresultFromObject) {
    for (LabelWindow* label :
         {static_cast<LabelWindow*>(&go), static_cast<LabelWindow*>(&update)}) {
        const LRESULT answer = SendMessageW(label->hwnd(), WM_GETOBJECT, 0, OBJID_CLIENT);
        if (answer > 0) {
            ComPtr<IAccessible> object;
            ASSERT_EQ(ObjectFromLresult(answer, IID_IAccessible, 0, &object), S_OK);
            EXPECT_EQ(Number(&IAccessible::get_accRole, *object.Get()),
                      Number(&IAccessible::get_accRole, *label->Accessible()));
        } else {
            // Wine marshals no IAccessible: LresultFromObject's own failure proves that it was
            // handed the label's object (the system's default answer is 0).
            EXPECT_EQ(answer, static_cast<LRESULT>(E_NOINTERFACE));
        }
        // The frame stays the system's.
        EXPECT_EQ(SendMessageW(label->hwnd(), WM_GETOBJECT, 0, OBJID_WINDOW), 0);
    }
}

TEST_F(LabelAccessibleTest, DefaultActionClicksOnceTheCallerHasReturned) {
    IAccessible& tab = *index.Accessible();
    EXPECT_EQ(tab.accDoDefaultAction(Self()), S_OK);
    EXPECT_FALSE(index.Selected());
    MessagePump().DoEvents();
    EXPECT_TRUE(index.Selected());
    EXPECT_FALSE(go.Selected());

    EXPECT_EQ(update.Accessible()->accDoDefaultAction(Self()), S_OK);
    EXPECT_EQ(previous.Accessible()->accDoDefaultAction(Self()), E_FAIL);
    MessagePump().DoEvents();
    std::vector<int> clicked;
    for (const auto& command : parent.commands) {
        clicked.push_back(command.id);
    }
    EXPECT_EQ(clicked, (std::vector<int>{2, 3}));
}

TEST_F(LabelAccessibleTest, AnObjectHeldPastItsLabelIsDisconnected) {
    const ComPtr<IAccessible> object = update.Accessible();
    DestroyWindow(update.hwnd());
    BSTR name = nullptr;
    EXPECT_EQ(object->get_accName(Self(), &name), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(object->accDoDefaultAction(Self()), CO_E_OBJNOTCONNECTED);
}

struct WinEvent {
    DWORD event;
    HWND window;
    LONG object;
    bool operator==(const WinEvent&) const = default;
};
std::vector<WinEvent> seen;

void CALLBACK RecordWinEvent(HWINEVENTHOOK, DWORD event, HWND window, LONG object, LONG child,
                             DWORD, DWORD) {
    if (child == CHILDID_SELF) {
        seen.push_back({event, window, object});
    }
}

TEST_F(LabelAccessibleTest, FocusSelectionAndTextChangesRaiseWinEvents) {
    const HWND counter = CreateWindowExW(0, L"STATIC", L"", WS_CHILD, 0, 80, 60, 20, parent.hwnd(),
                                         nullptr, nullptr, nullptr);
    const HWINEVENTHOOK hook =
        SetWinEventHook(EVENT_OBJECT_FOCUS, EVENT_OBJECT_NAMECHANGE, nullptr, &RecordWinEvent,
                        GetCurrentProcessId(), 0, WINEVENT_OUTOFCONTEXT);
    ASSERT_NE(hook, nullptr);
    struct Row {
        const char* what;
        std::function<void()> act;
        WinEvent expected;
    };
    const Row rows[] = {
        {"focus on a tab",
         [&] { SetFocus(index.hwnd()); },
         {EVENT_OBJECT_FOCUS, index.hwnd(), OBJID_CLIENT}},
        {"focus on a link",
         [&] { SetFocus(update.hwnd()); },
         {EVENT_OBJECT_FOCUS, update.hwnd(), OBJID_CLIENT}},
        {"a tab selected",
         [&] { index.SetSelected(true); },
         {EVENT_OBJECT_SELECTION, index.hwnd(), OBJID_CLIENT}},
        {"a caption changed",
         [&] { update.SetCaption("Cancel"); },
         {EVENT_OBJECT_NAMECHANGE, update.hwnd(), OBJID_CLIENT}},
        {"the counter counting",
         [&] { SetLiveText(counter, "42"); },
         {EVENT_OBJECT_NAMECHANGE, counter, OBJID_CLIENT}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        seen.clear();
        row.act();
        MessagePump().DoEvents();
        EXPECT_TRUE(std::ranges::find(seen, row.expected) != seen.end());
    }
    UnhookWinEvent(hook);
}

}  // namespace
}  // namespace quorin
