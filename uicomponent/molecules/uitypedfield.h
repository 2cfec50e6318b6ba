#pragma once

#include <windows.h>

#include <functional>
#include <memory>

#include "cxstring.h"
#include "featureidwithcontext.h"
#include "uimessagemask.h"
#include "uimoleculesite.h"
#include "uipagewindow.h"
#include "uiwindowsmessage.h"

class UIEditControl;
class UIToolTips;

/// A box to type in, and what becomes of what is typed. A valid text goes into the model at once,
/// and stays as it was typed until the box is left. Any other text waits: the model keeps its
/// value, the box keeps the text. When the person goes on to another control of the page, it is
/// corrected to the nearest allowed value, or the old one comes back, and a tip beside the box says
/// so; when they go to OK, Apply or another page, it stays, and Refuse() keeps the sheet open. A
/// subclass says which texts are valid. Owned by a molecule.
class UITypedField
{
public:
    /// What the field borrows from its molecule.
    struct Surroundings
    {
        const UIMoleculeSite& site;
        UIToolTips* toolTips;         ///< may be null
        FeatureIdWithContext feature; ///< whose name is the title of messages
        CXString label;
        std::function<CXString()> reason; ///< what limits the setting now; may give nothing
    };
    /// Dialog units.
    struct Box
    {
        POINT location{};
        SIZE size{};
        DWORD style = 0;   ///< ES_... bits
        int textLimit = 0; ///< characters that can be typed; 0: the system's own limit
    };

    UITypedField();
    virtual ~UITypedField();
    UITypedField(const UITypedField&) = delete;
    UITypedField& operator=(const UITypedField&) = delete;

    void CreateBox(UIPageWindow& page, const Surroundings& surroundings, const Box& box);
    virtual void Move(POINT delta);
    virtual void Enable(bool enabled);
    virtual void Show(bool shown);
    void SetReadOnly(bool readOnly);
    virtual bool HandleMessage(const _UIWindowsMessage& message);

    static void CollectWantedMessages(UIMessageMask& mask);

    HWND GetHwnd() const;
    CXString GetText() const;
    /// Whether the text is not (yet) in the model.
    bool IsPending() const { return m_pending; }
    /// Brings the model's value back into the box.
    void DropPending();
    /// Asked on Apply: with a text that is not valid, brings the page to the front, says what is
    /// wrong in a message box, and leaves the whole text selected.
    /// @return false when it was refused.
    bool Refuse();
    /// Judges the text once more, after something else that it depends on has changed.
    void Retake();

protected:
    struct Verdict
    {
        bool taken = false;    ///< it is in the model now
        CXString fault{};      ///< what is wrong with it, and what would be right
        CXString correction{}; ///< the nearest text that is allowed; empty: none
        bool waits = false;    ///< another field of the same setting may put it right
    };

    /// Takes the text into the model when it is valid.
    virtual Verdict Take(const CXString& text) = 0;
    /// How the model's value is written.
    virtual CXString PresentText() const = 0;
    /// The same for a sentence.
    virtual CXString PresentTextInSentence() const { return PresentText(); }
    /// Whether the window belongs to the setting as much as this field does.
    virtual bool IsSibling(HWND) const { return false; }

    /// What stands in the box now is what the person has settled on: a text that is no value later
    /// brings it back.
    virtual void KeepAsOrigin() = 0;
    /// Brings a text that waits to an end: judged once more, for what decides on it may have
    /// changed, it is taken, corrected, or the old one comes back.
    virtual void Settle();
    /// What is wrong with a text that other settings rule out, and which.
    CXString RefusedSentence() const;
    const UIMoleculeSite& GetSite() const { return *m_site; }

    /// Puts a text into the box, without taking it for typed.
    void ShowText(const CXString& text);
    /// Shows the tip once the focus has come where it is going: a window that is still to be
    /// activated would cover it.
    void ShowTip(const CXString& text);
    void HideTip();
    CXString String(unsigned number) const;
    UIEditControl* GetEdit() const { return m_edit.get(); }
    HWND GetPage() const { return m_page; }

private:
    void Typed();
    void Keep();
    void Left(HWND next);
    void PlaceTip();
    void BringPageToFront() const;
    CXString Consequence(unsigned number, const CXString& value) const;

    std::unique_ptr<UIEditControl> m_edit;
    const UIMoleculeSite* m_site = nullptr;
    UIToolTips* m_toolTips = nullptr;
    FeatureIdWithContext m_feature;
    std::function<CXString()> m_reason;
    HWND m_page = nullptr;
    Verdict m_verdict;
    CXString m_lastText; ///< seen or shown in the box
    bool m_pending = false;
    bool m_filling = false;
    CXString m_tipToShow; ///< empty when none is about to be shown
    bool m_tipShown = false;
};
