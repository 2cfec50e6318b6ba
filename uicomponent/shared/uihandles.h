#pragma once

#include <windows.h>

#include <utility>

/// Owners of Windows handles: nothing else in this module releases one. The owners of things that
/// live in fields are one pointer wide; the scope objects at the end pair a release with what it
/// has to be told (window, paint record, former object) and live on the stack only.
///
/// None of them throws. An owner made from a failed call holds the type's null value and is false.
namespace o7 {

/// Owns one handle. Traits give the handle's Type, its null value and the call that releases it.
template <class Traits> class UniqueHandle
{
public:
    using Type = typename Traits::Type;

    UniqueHandle() = default;
    explicit UniqueHandle(Type handle) noexcept : m_handle(handle) {}
    UniqueHandle(UniqueHandle&& other) noexcept : m_handle(other.release()) {}
    UniqueHandle& operator=(UniqueHandle&& other) noexcept
    {
        reset(other.release());
        return *this;
    }
    UniqueHandle(const UniqueHandle&) = delete;
    UniqueHandle& operator=(const UniqueHandle&) = delete;
    ~UniqueHandle() { reset(); }

    Type get() const noexcept { return m_handle; }
    explicit operator bool() const noexcept { return m_handle != Traits::null(); }

    /// Gives the handle up without releasing it.
    Type release() noexcept { return std::exchange(m_handle, Traits::null()); }

    /// Releases what is held, then holds the given handle.
    void reset(Type handle = Traits::null()) noexcept
    {
        const Type old = std::exchange(m_handle, handle);
        if (old != Traits::null() && old != handle) {
            Traits::close(old);
        }
    }

private:
    Type m_handle = Traits::null();
};

template <class Handle> struct NullableHandle
{
    using Type = Handle;
    static constexpr Type null() noexcept { return nullptr; }
};

template <class Handle> struct GdiTraits : NullableHandle<Handle>
{
    static void close(Handle object) noexcept { ::DeleteObject(object); }
};
struct IconTraits : NullableHandle<HICON>
{
    static void close(HICON icon) noexcept { ::DestroyIcon(icon); }
};

struct MemoryDcTraits : NullableHandle<HDC>
{
    static void close(HDC dc) noexcept { ::DeleteDC(dc); }
};
struct KernelTraits : NullableHandle<HANDLE>
{
    static void close(HANDLE object) noexcept { ::CloseHandle(object); }
};
struct FileTraits
{
    using Type = HANDLE;
    static Type null() noexcept { return INVALID_HANDLE_VALUE; }
    static void close(HANDLE file) noexcept { ::CloseHandle(file); }
};
struct GlobalMemoryTraits : NullableHandle<HGLOBAL>
{
    static void close(HGLOBAL memory) noexcept { ::GlobalFree(memory); }
};
struct ModuleTraits : NullableHandle<HMODULE>
{
    static void close(HMODULE module) noexcept { ::FreeLibrary(module); }
};
struct WindowTraits : NullableHandle<HWND>
{
    static void close(HWND window) noexcept { ::DestroyWindow(window); }
};
struct HookTraits : NullableHandle<HHOOK>
{
    static void close(HHOOK hook) noexcept { ::UnhookWindowsHookEx(hook); }
};
struct ActivationContextTraits
{
    using Type = HANDLE;
    static Type null() noexcept { return INVALID_HANDLE_VALUE; }
    static void close(HANDLE context) noexcept { ::ReleaseActCtx(context); }
};

using UniqueFont = UniqueHandle<GdiTraits<HFONT>>;
using UniqueBitmap = UniqueHandle<GdiTraits<HBITMAP>>;
using UniqueBrush = UniqueHandle<GdiTraits<HBRUSH>>;
using UniquePen = UniqueHandle<GdiTraits<HPEN>>;
using UniqueIcon = UniqueHandle<IconTraits>;         ///< not for shared icons
using UniqueMemoryDc = UniqueHandle<MemoryDcTraits>; ///< from CreateCompatibleDC or CreateDC
using UniqueEvent = UniqueHandle<KernelTraits>;
using UniqueThread = UniqueHandle<KernelTraits>;
using UniqueFile = UniqueHandle<FileTraits>;
using UniqueGlobalMemory = UniqueHandle<GlobalMemoryTraits>;
using UniqueModule = UniqueHandle<ModuleTraits>;
using UniqueWindow = UniqueHandle<WindowTraits>;
using UniqueHook = UniqueHandle<HookTraits>; ///< from SetWindowsHookEx
using UniqueActivationContext = UniqueHandle<ActivationContextTraits>;

static_assert(sizeof(UniqueWindow) == sizeof(HWND) && sizeof(UniqueFont) == sizeof(HFONT));

/// The DC of a window's client area (GetDC, ReleaseDC); of the screen when the window is null.
class WindowDc
{
public:
    explicit WindowDc(HWND window) noexcept : m_window(window), m_dc(::GetDC(window)) {}
    ~WindowDc()
    {
        if (m_dc != nullptr) {
            ::ReleaseDC(m_window, m_dc);
        }
    }
    WindowDc(const WindowDc&) = delete;
    WindowDc& operator=(const WindowDc&) = delete;
    HDC get() const noexcept { return m_dc; }

private:
    HWND m_window;
    HDC m_dc;
};

/// The DC of one WM_PAINT (BeginPaint, EndPaint).
class PaintDc
{
public:
    explicit PaintDc(HWND window) noexcept : m_window(window), m_dc(::BeginPaint(window, &m_paint))
    {
    }
    ~PaintDc() { ::EndPaint(m_window, &m_paint); }
    PaintDc(const PaintDc&) = delete;
    PaintDc& operator=(const PaintDc&) = delete;
    HDC get() const noexcept { return m_dc; }
    const PAINTSTRUCT& paint() const noexcept { return m_paint; }

private:
    HWND m_window;
    PAINTSTRUCT m_paint{};
    HDC m_dc;
};

/// Selects a GDI object into a DC and puts the former one back. The object is borrowed.
class SelectedObject
{
public:
    SelectedObject(HDC dc, HGDIOBJ object) noexcept : m_dc(dc), m_former(::SelectObject(dc, object))
    {
    }
    ~SelectedObject()
    {
        if (m_former != nullptr) {
            ::SelectObject(m_dc, m_former);
        }
    }
    SelectedObject(const SelectedObject&) = delete;
    SelectedObject& operator=(const SelectedObject&) = delete;

private:
    HDC m_dc;
    HGDIOBJ m_former;
};

/// Locks global memory for its life (GlobalLock, GlobalUnlock). The memory is borrowed.
class GlobalMemoryLock
{
public:
    explicit GlobalMemoryLock(HGLOBAL memory) noexcept
        : m_memory(memory), m_data(::GlobalLock(memory))
    {
    }
    ~GlobalMemoryLock()
    {
        if (m_data != nullptr) {
            ::GlobalUnlock(m_memory);
        }
    }
    GlobalMemoryLock(const GlobalMemoryLock&) = delete;
    GlobalMemoryLock& operator=(const GlobalMemoryLock&) = delete;
    void* get() const noexcept { return m_data; }

private:
    HGLOBAL m_memory;
    void* m_data;
};

} // namespace o7
