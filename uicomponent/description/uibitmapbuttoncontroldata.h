#pragma once

#include "uicontroldata.h"

/// A push button with a picture. In a molecule it also means: leave room for the raised height.
class UIBitmapButtonControlData : public UIControlData
{
public:
    explicit UIBitmapButtonControlData(const UIControlRecord& record)
        : UIControlData(record), m_extra(&extraOf<UIBitmapButtonRecord>(record))
    {
    }

    std::uint32_t getBitmap() const { return m_extra->bitmap; }
    std::uint32_t getDisabledBitmap() const
    {
        return m_extra->disabledBitmap != 0 ? m_extra->disabledBitmap : m_extra->bitmap;
    }
    std::uint32_t getAction() const { return m_extra->action; } ///< 0: reports nothing.
    DialogId getDialog() const { return m_extra->dialog; }      ///< 0: opens nothing.

private:
    const UIBitmapButtonRecord* m_extra;
};
