#include "uitvnodecontroldata.h"

UITvNodeControlData::UITvNodeControlData(const UITvControlRecord& record) : UITvControlData(record)
{
    m_children.reserve(record.children.size());
    for (const UITvControlRecord& child : record.children)
        m_children.push_back(UITvControlData::create(child));
}
