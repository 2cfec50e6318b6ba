#include "session.h"

namespace o7::story {

std::string_view entryName(Entry entry)
{
    switch (entry) {
    case Entry::Sheet:
        return "sheet";
    case Entry::Cpsui:
        return "cpsui";
    case Entry::Child:
        return "child";
    case Entry::Dialog:
        return "dialog";
    case Entry::InApp:
        return "in-app";
    case Entry::Model:
        break;
    }
    return "model";
}

} // namespace o7::story
