#pragma once

#include "uicontrol.h"

/// A slider ("msctls_trackbar32") with a tick at each step, as long as they can be told apart. The
/// parent gets WM_HSCROLL or WM_VSCROLL when the person moves it, nothing when code does.
class O7UI_API UISliderControl : public UIControl
{
public:
    /// @param style            added, less the bits that would place ticks or buttons elsewhere
    /// (0xC6)
    /// @param minimum,maximum  ends of the range, both included
    UISliderControl(HWND parent, int id, UIServices& services, HFONT font, POINT location,
                    SIZE size, DWORD style, int minimum, int maximum);
    ~UISliderControl() override;

    void dump() const override;

    /// Other ends; what the tick marks stand for stays.
    void setRange(int minimum, int maximum);
    int getMinimum() const;
    int getMaximum() const;
    int getPosition() const;
    /// Moves the thumb, to the nearer end when the position is out of range; silent, and nothing is
    /// repainted when it is there already.
    void setPosition(int position);
    /// A tick at every so many steps (TBM_SETTICFREQ). Over a range in which these would be more
    /// than the eye can tell apart, at every so many more.
    void setTickFrequency(int steps);
    /// How far an arrow key and a click beside the thumb move it (TBM_SETLINESIZE,
    /// TBM_SETPAGESIZE).
    void setSteps(int line, int page);

private:
    int m_tickSteps = 1; ///< as wanted
    int m_frequency = 1; ///< what the window was given
};
