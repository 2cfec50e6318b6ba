#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "listoffeaturesref.h"
#include "uiconflictquestion.h"
#include "uifunctionkey.h"
#include "uimessagehandler.h"
#include "uimoleculecontainer.h"

class UIButtonControl;
struct UIContext;

/// One popup dialog: a container of molecules in a window of its own, with a row of buttons at its
/// lower edge. Lives while the modal dialog runs. Where it stands alone, its OK is the person's
/// last word: required settings have to have a value, and settings in conflict are asked about.
class UIPopupDialog : public UIMoleculeContainer, public UIMessageHandler
{
public:
    /// @param features  the list that the dialog works on.
    /// @param wholeUi   the dialog stands alone: centred on the screen instead of over its owner.
    /// @param param     for the caller's own use; borrowed.
    UIPopupDialog(FeatureServices& featureServices, UIContext& context, UIServices& services,
                  const ListOfFeaturesRef& features, const UIContainerData& data, bool wholeUi,
                  void* param);
    ~UIPopupDialog() override;

    bool handleMessage(const _UIWindowsMessage& message) override;
    void dump() const override;

    void* getParam() const { return m_param; }

protected:
    bool createOn(HWND window) override;

private:
    bool open(const _UIWindowsMessage& message);
    void createButtons();
    void focusFirst() const;
    void placeOnScreen() const;
    bool processCommand(const _UIWindowsMessage& message);
    void goToConflict(bool backwards) const;
    bool isAgreed();
    void goTo(const FeatureIdWithContext& feature) const;

    const UIContainerData& m_data;
    bool m_wholeUi;
    void* m_param;
    UIConflictQuestion m_question;
    std::vector<std::unique_ptr<UIButtonControl>> m_buttons;
    std::optional<UIFunctionKey> m_conflictKey;
};
