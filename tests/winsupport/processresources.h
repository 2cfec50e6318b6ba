#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace o7::test {

/// What this process holds at one moment, each item identified so that a growth can be named.
/// All of it is read from the system, nothing is guessed from calls that went through us.
class ProcessResources
{
public:
    /// One held thing: its handle or id, and words for a person ("font", "window 'Button' \"OK\"").
    struct Item
    {
        unsigned long long id;
        std::wstring what;
    };
    using Items = std::vector<Item>;

    /// Reads everything now. Costs a few milliseconds.
    static ProcessResources now();

    /// Every window of this process on this desktop: top-level ones, their children at any depth,
    /// and message-only ones; without the input-method windows that the system adds to a thread.
    Items windows;
    /// Every GDI object except the system's stock objects.
    Items gdiObjects;
    /// Every kernel handle; empty when the system does not tell.
    Items kernelHandles;
    /// Every running thread, by id.
    Items threads;
};

/// Windows only: EnumWindows, EnumChildWindows, FindWindowEx below HWND_MESSAGE.
ProcessResources::Items windowsOfThisProcess();
/// From the shared GDI handle table of the process environment block: GetGuiResources answers 0
/// under Wine, this is exact there and on Windows.
ProcessResources::Items gdiObjectsOfThisProcess();
/// By NtQuerySystemInformation: GetProcessHandleCount answers 0 under Wine.
ProcessResources::Items kernelHandlesOfThisProcess();
/// By a tool-help snapshot.
ProcessResources::Items threadsOfThisProcess();

} // namespace o7::test
