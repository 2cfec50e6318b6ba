// Uses a printer from the system's text editor as a person would, where the program itself has a
// say that no story can have, and ends 0 only when everything came as it must:
//
//  1. Paper and sides chosen in our sheet are in the public fields of the program's DEVMODE, and in
//     the program's own list of papers.
//  2. A paper chosen in that list is in our sheet, and the sides are still there.
//
//   o7drive PRODUCT [--shots DIR]
//
// It stands beside o7install and the modules. The desktop has to be English. What goes on in the
// sheet alone, stories tell (tests/stories).

#include <windows.h>

#include <objbase.h>

#include <cstdio>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <utility>

#include "devmodescan.h"
#include "editorstage.h"
#include "otherwindow.h"
#include "systemnumbers.h"
#include "windowpicture.h"

namespace {

namespace fs = std::filesystem;
using o7::story::EditorStage;

/// Entries of the lists of papers, the program's and ours.
constexpr char kA5[] = "A5 (148 \u00d7 210 mm)";
constexpr char kLetter[] = "Letter (8.5 \u00d7 11\")";

fs::path programFolder()
{
    wchar_t path[MAX_PATH];
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    return fs::path(path).parent_path();
}

void expect(const std::string& found, const std::string& wanted, const std::string& where)
{
    std::printf("%s: %s\n", where.c_str(), found.c_str());
    if (found != wanted) {
        throw std::runtime_error(where + " there must be \"" + wanted + "\".");
    }
}

bool isA5OnTheShortEdge(const o7::PublicFields& fields)
{
    constexpr int kA5Paper = 11;
    constexpr int kDuplexShortEdge = 3;
    return fields.has(o7::kPaperSizeField | o7::kDuplexField) && fields.paperSize == kA5Paper &&
           fields.paperWidth == 1480 && fields.paperLength == 2100 &&
           fields.duplex == kDuplexShortEdge;
}

/// The editor with our sheet, and pictures of it where somebody wants them.
class Journey
{
public:
    Journey(const std::string& product, fs::path shots)
        : m_printer(EditorStage::printerName(product)),
          m_stage(programFolder(), {product, o7::story::Entry::InApp, 1, "en"}),
          m_shots(std::move(shots))
    {
    }

    void settingsReachTheProgram()
    {
        m_stage.open();
        m_stage.page("Paper/Output"); // it opens where somebody left it
        expect(m_stage.editor().paper(), m_stage.value("Paper size"),
               "In the program's own set-up at first, as in our sheet");
        if (isInProgram()) {
            throw std::runtime_error("The program has the settings before they were chosen.");
        }
        m_stage.choose("Paper size", kA5);
        m_stage.choose("Sides", "Two-sided, short edge");
        shoot("changed");
        m_stage.press("OK");
        m_stage.editor().closeSetUp();
        if (!isInProgram()) {
            throw std::runtime_error("Paper and sides are not in the program's public fields.");
        }
        std::puts("In the program's public fields: A5, two-sided, short edge");
    }

    void theProgramsChoiceComesBack()
    {
        m_stage.editor().openSetUp();
        shoot("set-up");
        expect(m_stage.editor().paper(), kA5, "In the program's own set-up afterwards");
        m_stage.editor().choosePaper(kLetter);
        m_stage.reopen();
        m_stage.page("Paper/Output");
        shoot("after-set-up");
        expect(m_stage.value("Paper size"), kLetter, "In our sheet after a change in the set-up");
        expect(m_stage.value("Sides"), "Two-sided, short edge", "Beside it, untouched");
        m_stage.press("Cancel");
        m_stage.editor().closeSetUp();
        m_stage.editor().end();
    }

private:
    bool isInProgram()
    {
        return o7::inapp::holdsDevMode(m_stage.editor().process(), o7::story::wide(m_printer),
                                       isA5OnTheShortEdge);
    }

    /// What lies over the editor's window, the editor included, as a numbered picture.
    void shoot(const std::string& name)
    {
        if (!m_shots.empty()) {
            const std::string number = std::to_string(++m_shotCount);
            o7::WindowPicture(m_stage.editor().window())
                .savePng(m_shots / ("in-app-" + number + "-" + name + ".png"));
        }
    }

    std::string m_printer;
    EditorStage m_stage;
    fs::path m_shots;
    int m_shotCount = 0;
};

} // namespace

int wmain(int count, wchar_t** words)
{
    try {
        const bool withShots = count == 4 && std::wstring(words[2]) == L"--shots";
        if (count != 2 && !withShots) {
            throw std::invalid_argument("usage: o7drive PRODUCT [--shots DIR]");
        }
        if (FAILED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {
            throw std::runtime_error("COM cannot be used.");
        }
        Journey journey(o7::story::utf8(words[1]), withShots ? fs::path(words[3]) : fs::path());
        journey.settingsReachTheProgram();
        journey.theProgramsChoiceComesBack();
        std::puts("Everything that was chosen came where it belongs, and nothing else did.");
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "o7drive: %s\n", error.what());
        return 1;
    }
}
