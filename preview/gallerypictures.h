#pragma once

#include <filesystem>

#include "gallerywindow.h"
#include "pointer.h"

namespace o7 {

class WindowPicture;

/// Takes pictures of the gallery. What cannot stand side by side at one time (only one control is
/// under the pointer, or has the keyboard) is brought about one by one, and each control's place in
/// the picture is taken while it is in that state: everything in a picture was drawn by the control
/// itself.
class GalleryPictures
{
public:
    /// The folder must be there.
    GalleryPictures(GalleryWindow& window, std::filesystem::path folder);

    /// One of each page, one of an open list, one of a tip. Throws std::runtime_error when a
    /// picture cannot be taken or a list or tip does not come up.
    void saveAll();

private:
    void savePage(int index);
    void saveOpenList();
    void saveTip();
    void add(WindowPicture& picture, const GalleryCell& cell);
    void press(WindowPicture& picture, const GalleryCell& cell);
    /// Hands out messages until none came for a while, so that everything is on the screen.
    void settle();
    static RECT placeOf(HWND window);
    const GalleryCell* find(GalleryState state, const wchar_t* className, int& pageIndex) const;

    GalleryWindow& m_window;
    std::filesystem::path m_folder;
    Pointer m_pointer;
};

} // namespace o7
