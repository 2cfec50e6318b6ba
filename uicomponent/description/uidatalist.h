#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "uirecordlist.h"

/// The owned children of a description object, in record order.
template <class Data> using UIDataList = std::vector<std::unique_ptr<Data>>;

namespace o7 {

/// One description object for each record, in order; every further argument goes to each of them.
template <class Data, class Record, class... Arguments>
UIDataList<Data> wrapRecords(const UIRecords<Record>& records, const Arguments&... arguments)
{
    UIDataList<Data> list;
    list.reserve(records.size());
    for (const Record& record : records)
        list.push_back(std::make_unique<Data>(record, arguments...));
    return list;
}

} // namespace o7
