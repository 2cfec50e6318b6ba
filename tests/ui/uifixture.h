#pragma once

#include <gtest/gtest.h>

#include <windows.h>

#include <filesystem>
#include <memory>
#include <string>

#include "cxstring.h"
#include "datamodelids.h"
#include "productsession.h"

namespace o7::test {

/// The product whose pages the tests open.
inline constexpr wchar_t kProduct[] = L"office-c430";

/// The folder of the built products, beside the test program.
std::filesystem::path productsFolder();

/// Base of tests that open the real product: a fresh session for every test.
class UIFixture : public ::testing::Test
{
protected:
    void SetUp() override;

    o7::ProductSession& session() { return *m_session; }
    IDataModel& model() { return m_session->model(); }
    bool boolean(DataModelIds::tagFeatureEnum feature);
    int option(DataModelIds::tagFeatureEnum feature);
    void setOption(DataModelIds::tagFeatureEnum feature, int value);

private:
    std::unique_ptr<o7::ProductSession> m_session;
};

/// The visible child control (at any depth) of a class whose text, without mnemonic marks, is this;
/// null when there is none.
HWND findControl(HWND dialog, const wchar_t* className, const wchar_t* text);
/// The list box behind the label with this text, without mnemonic marks: the window after it.
HWND findListBehind(HWND dialog, const wchar_t* label);
/// The page of a sheet that is shown now.
HWND currentPage(HWND sheet);

} // namespace o7::test
