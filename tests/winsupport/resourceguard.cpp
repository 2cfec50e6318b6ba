#include "resourceguard.h"

#include "input.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace o7::test {
namespace {

constexpr int settleMilliseconds = 1000;

std::string narrow(const std::wstring& text)
{
    std::string out;
    for (const wchar_t c : text)
        out += c < 0x80 ? static_cast<char>(c) : '?';
    return out;
}

bool contains(const ProcessResources::Items& items, unsigned long long id)
{
    return std::any_of(items.begin(), items.end(),
                       [id](const ProcessResources::Item& item) { return item.id == id; });
}

std::string listOfNew(const ProcessResources::Items& old, const ProcessResources::Items& now)
{
    std::string list;
    for (const auto& item : now) {
        if (!contains(old, item.id))
            list += (list.empty() ? "" : ", ") + narrow(item.what);
    }
    return list;
}

std::string differenceOf(const char* kind, const ProcessResources::Items& before,
                         const ProcessResources::Items& after)
{
    if (before.size() == after.size())
        return {};
    std::string line = std::string(kind) + ": " + std::to_string(before.size()) + " before, " +
                       std::to_string(after.size()) + " after";
    if (const std::string came = listOfNew(before, after); !came.empty())
        line += "; came: " + came;
    if (const std::string went = listOfNew(after, before); !went.empty())
        line += "; went: " + went;
    return line + "\n";
}

// Makes now what the system makes at its first use anyway.
void warmUp()
{
    for (int color = 0; color <= COLOR_MENUBAR; ++color)
        GetSysColorBrush(color);
    if (HDC screen = GetDC(nullptr))
        ReleaseDC(nullptr, screen);
}

} // namespace

ResourceGuard::ResourceGuard(unsigned kinds) : kinds_(kinds)
{
    warmUp();
    pumpMessages();
    ProcessResources::now(); // reading for the first time leaves traces of its own
    before_ = ProcessResources::now();
}

ResourceGuard::~ResourceGuard()
{
    if (compared_)
        return;
    if (const std::string lines = compare(); !lines.empty())
        ADD_FAILURE() << "resources differ\n" << lines;
}

std::string ResourceGuard::difference() const
{
    const ProcessResources after = ProcessResources::now();
    std::string lines;
    if ((kinds_ & Windows) != 0)
        lines += differenceOf("windows", before_.windows, after.windows);
    if ((kinds_ & GdiObjects) != 0)
        lines += differenceOf("GDI objects", before_.gdiObjects, after.gdiObjects);
    if ((kinds_ & KernelHandles) != 0)
        lines += differenceOf("kernel handles", before_.kernelHandles, after.kernelHandles);
    if ((kinds_ & Threads) != 0)
        lines += differenceOf("threads", before_.threads, after.threads);
    return lines;
}

std::string ResourceGuard::compare()
{
    compared_ = true;
    std::string lines;
    pumpMessages();
    pumpUntil([&] { return (lines = difference()).empty(); }, settleMilliseconds);
    return lines;
}

} // namespace o7::test
