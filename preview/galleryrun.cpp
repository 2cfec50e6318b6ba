#include "galleryrun.h"

#include <windows.h>

#include <uxtheme.h>

#include <chrono>

#include "console.h"
#include "displayedexceptions.h"
#include "gallerypictures.h"
#include "gallerywindow.h"
#include "watchdog.h"
#include "windowpicture.h"
#include "windowrecorder.h"

namespace o7 {
namespace {

/// Long past the time that all pictures take.
constexpr std::chrono::seconds kUnattendedLimit{90};

} // namespace

ExitCode runGallery(const PreviewOptions& options)
{
    if (options.classic) {
        SetThemeAppProperties(0);
    }
    if (!options.unattended()) {
        GalleryWindow(options.mirrored).run();
        return ExitCode::Done;
    }
    const Watchdog watchdog(kUnattendedLimit);
    const DisplayedExceptions exceptions;
    GalleryWindow window(options.mirrored);
    const WindowRecorder recorder(options.shotsDirectory, options.snapshotFile);
    if (!options.shotsDirectory.empty()) {
        WindowPicture::bringToFront(window.handle());
        GalleryPictures(window, options.shotsDirectory).saveAll();
    }
    recorder.saveSnapshot(window.dumpText());
    for (const std::wstring& text : exceptions.texts()) {
        printError(text);
    }
    return exceptions.texts().empty() ? ExitCode::Done : ExitCode::Failed;
}

} // namespace o7
