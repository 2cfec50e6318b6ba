#pragma once

#include <windows.h>

#include <functional>

#include "iobserver.h"

class FeatureServices;

/// Keeps the Apply button of the sheet truthful: enabled exactly while a setting differs from the
/// accepted ones, whoever changed it, or something typed has not been taken over yet.
///
/// Asking the model whether anything differs means comparing all of it, so it is asked once for a
/// burst of changes: the first change of a burst posts a message to a page, and the answer is kept.
class UIApplyButton : public IObserver
{
public:
    /// Posted to a page when the model has changed; the manager calls modelChanged() then.
    static constexpr UINT kModelChanged = WM_APP + 10;

    /// @param hasPendingInput  asked after every command of a page, so it has to be quick.
    UIApplyButton(FeatureServices& featureServices, std::function<bool()> hasPendingInput);
    ~UIApplyButton() override;
    UIApplyButton(const UIApplyButton&) = delete;
    UIApplyButton& operator=(const UIApplyButton&) = delete;

    /// The first page that gets its window stands for all in what the sheet is told.
    void pageInitialized(HWND page);
    /// It loses its window. @param other  an open page that can take its place; null when there is
    /// none.
    void pageGoes(HWND page, HWND other);
    void modelChanged();
    /// After what a person did: typed input may wait now, or no longer.
    void update();
    /// All pages have been applied; the sheet itself greys the button unless something differs
    /// still.
    void applied();

    void ProcessNotification(const INotification& notification, unsigned int kind) override;
    CXString GetObserverClassNameHeirarchy() const override;

private:
    void postQuestion();

    FeatureServices& m_featureServices;
    std::function<bool()> m_hasPendingInput;
    HWND m_page = nullptr;
    bool m_isWatching = false;
    bool m_isPosted = false;
    bool m_isModelModified = false;
    bool m_isShown = false; ///< what the sheet was told last
};
