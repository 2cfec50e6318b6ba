// Uses a printer as a person would, from the system's text editor, and ends 0 only when everything
// came as it must:
//
//  1. Print, Properties: a change with OK is there again at the next opening, one with Cancel is
//  not.
//  2. The program's own set-up, Properties: paper and sides chosen in our sheet are in the public
//     fields of the program's DEVMODE, and in the set-up's own list of papers.
//  3. A paper chosen in that list is in our sheet, and the sides are still there.
//
//   o7drive STRINGS PRINTER [--shots DIR]
//
// STRINGS is the product's module of texts in the language of the desktop: lists are known by their
// entries. PRINTER is the name of the installed printer.

#include <windows.h>

#include <objbase.h>

#include <cstdio>
#include <filesystem>
#include <stdexcept>
#include <string>

#include "cxstring.h"
#include "devmodescan.h"
#include "editorsession.h"
#include "systemnumbers.h"

namespace {

namespace fs = std::filesystem;
using o7::inapp::EditorSession;

/// Texts of values in the product's string module.
constexpr UINT kA5 = 45112;
constexpr UINT kLetter = 45113;
constexpr UINT kOneSided = 45140;
constexpr UINT kLongEdge = 45141;
constexpr UINT kShortEdge = 45142;

void expect(const std::wstring& found, const std::wstring& wanted, const char* where)
{
    std::printf("%s: %s\n", where, CXString(found).ToUtf8().c_str());
    if (found != wanted) {
        throw std::runtime_error(std::string(where) + " there must be another value.");
    }
}

void changesAreKeptWithOkOnly(EditorSession& session)
{
    session.openPrintDialog();
    session.shoot("print-dialog");
    session.openProperties();
    expect(session.chosen(kLongEdge), session.text(kOneSided), "At the first opening");
    session.choose(kLongEdge);
    session.shoot("changed");
    session.closeProperties(IDOK);

    session.openProperties();
    session.shoot("after-ok");
    expect(session.chosen(kLongEdge), session.text(kLongEdge), "After a change and OK");
    session.choose(kShortEdge);
    session.closeProperties(IDCANCEL);

    session.openProperties();
    session.shoot("after-cancel");
    expect(session.chosen(kLongEdge), session.text(kLongEdge), "After another change and Cancel");
    session.closeProperties(IDCANCEL);
    session.closeDialog(IDCANCEL);
}

bool isA5OnTheShortEdge(const o7::PublicFields& fields)
{
    constexpr int kA5Paper = 11;
    constexpr int kDuplexShortEdge = 3;
    return fields.has(o7::kPaperSizeField | o7::kDuplexField) && fields.paperSize == kA5Paper &&
           fields.paperWidth == 1480 && fields.paperLength == 2100 &&
           fields.duplex == kDuplexShortEdge;
}

void settingsReachTheProgramAndComeBack(EditorSession& session, const std::wstring& printer)
{
    const auto isInProgram = [&] {
        return o7::inapp::holdsDevMode(session.process(), printer, isA5OnTheShortEdge);
    };
    if (isInProgram()) {
        throw std::runtime_error("The program has the settings before they were chosen.");
    }
    session.openSetUp();
    const std::wstring paper = session.chosenPaper();
    session.openProperties();
    expect(paper, session.chosen(kA5), "In the program's own set-up at first, as in our sheet");
    session.choose(kA5);
    session.choose(kShortEdge);
    session.closeProperties(IDOK);
    session.closeDialog(IDOK);
    if (!isInProgram()) {
        throw std::runtime_error("Paper and sides are not in the program's public fields.");
    }
    std::puts("In the program's public fields: A5, two-sided, short edge");

    session.openSetUp();
    session.shoot("set-up");
    expect(session.chosenPaper(), session.text(kA5), "In the program's own set-up afterwards");
    session.choosePaper(kLetter);
    session.closeDialog(IDOK);

    session.openPrintDialog();
    session.openProperties();
    expect(session.chosen(kA5), session.text(kLetter), "In our sheet after a change in the set-up");
    session.shoot("after-set-up");
    expect(session.chosen(kLongEdge), session.text(kShortEdge), "Beside it, untouched");
    session.closeProperties(IDCANCEL);
    session.closeDialog(IDCANCEL);
}

void drive(const fs::path& strings, const std::wstring& printer, const fs::path& shots)
{
    EditorSession session(strings, shots);
    changesAreKeptWithOkOnly(session);
    settingsReachTheProgramAndComeBack(session, printer);
    session.end();
}

} // namespace

int wmain(int count, wchar_t** words)
{
    try {
        const bool withShots = count == 5 && std::wstring(words[3]) == L"--shots";
        if (count != 3 && !withShots) {
            throw std::invalid_argument("usage: o7drive STRINGS PRINTER [--shots DIR]");
        }
        if (FAILED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {
            throw std::runtime_error("COM cannot be used.");
        }
        drive(words[1], words[2], withShots ? fs::path(words[4]) : fs::path());
        std::puts("Everything that was chosen came where it belongs, and nothing else did.");
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "o7drive: %s\n", error.what());
        return 1;
    }
}
