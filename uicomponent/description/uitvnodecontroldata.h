#pragma once

#include "uidatalist.h"
#include "uitvcontroldata.h"

/// A node of the tree: a heading with items below it.
class UITvNodeControlData : public UITvControlData
{
public:
    explicit UITvNodeControlData(const UITvControlRecord& record);

    const UIDataList<UITvControlData>& getChildren() const { return m_children; }

private:
    UIDataList<UITvControlData> m_children;
};
