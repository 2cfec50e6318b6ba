#include "cxstringprinter.h"
#include "orvikexception.h"
#include "registrykey.h"
#include "user.h"

#include <gtest/gtest.h>

#include <climits>

#include <windows.h>

namespace {

// A key of its own for every test, gone afterwards.
class Registry : public testing::Test
{
protected:
    Registry()
        : m_name(CXString::Formatted(L"Test-%lu", GetCurrentProcessId())),
          m_key(HKEY_CURRENT_USER, L"Software\\Orvik\\" + m_name)
    {
    }
    ~Registry() override { m_key.DeleteKey(); }

    void setRaw(const wchar_t* name, DWORD type, const void* data, DWORD size) const
    {
        const CXString path = m_key.GetPath();
        ASSERT_EQ(RegSetKeyValueW(HKEY_CURRENT_USER, path.c_str(), name, type, data, size), 0);
    }

    CXString m_name;
    RegistryKey m_key;
};

TEST_F(Registry, KeepsValuesOfEveryType)
{
    EXPECT_FALSE(m_key.Exists());
    EXPECT_TRUE(m_key.CreateRegistryKey());
    EXPECT_TRUE(m_key.CreateRegistryKey());
    EXPECT_TRUE(m_key.Exists());

    for (const std::int32_t number : {0, -1, INT_MAX, INT_MIN}) {
        EXPECT_TRUE(m_key.SetLongValue(L"number", number));
        EXPECT_EQ(m_key.GetLongValue(L"number", 5), number);
    }
    const std::uint8_t bytes[] = {0, 1, 0xFF};
    ByteBuffer read(CXString(L"kept"));
    EXPECT_TRUE(m_key.SetBytesValue(L"bytes", ByteBuffer(bytes, sizeof bytes)));
    EXPECT_TRUE(m_key.GetBytesValue(L"bytes", read));
    EXPECT_EQ(read, ByteBuffer(bytes, sizeof bytes));
    EXPECT_TRUE(m_key.SetBytesValue(L"none", ByteBuffer()));
    EXPECT_TRUE(m_key.GetBytesValue(L"none", read));
    EXPECT_TRUE(read.empty());
    EXPECT_TRUE(m_key.SetStringValue(L"text", L"Gr\u00F6\u00DFe \u65E5"));
    EXPECT_EQ(m_key.GetStringValue(L"text", L"x"), L"Gr\u00F6\u00DFe \u65E5");
}

TEST_F(Registry, GivesTheDefaultForWhatIsMissingOrOfAnotherKind)
{
    ByteBuffer kept(CXString(L"kept"));
    EXPECT_EQ(m_key.GetLongValue(L"number", 5), 5);
    EXPECT_FALSE(m_key.GetBytesValue(L"bytes", kept));

    EXPECT_TRUE(m_key.SetStringValue(L"value", L"12"));
    EXPECT_EQ(m_key.GetLongValue(L"value", 5), 5);
    EXPECT_FALSE(m_key.GetBytesValue(L"value", kept));
    EXPECT_EQ(kept.getAsStringValue(), L"kept");
    EXPECT_TRUE(m_key.SetLongValue(L"value", 1));
    EXPECT_EQ(m_key.GetStringValue(L"value", L"default"), L"default");

    setRaw(L"short", REG_DWORD, "ab", 2);
    EXPECT_EQ(m_key.GetLongValue(L"short", 5), 5);
    setRaw(L"unterminated", REG_SZ, L"abc", 4);
    EXPECT_EQ(m_key.GetStringValue(L"unterminated", L""), L"ab");
}

TEST_F(Registry, DeletesOnlyWhatItIsToldTo)
{
    RegistryKey below(HKEY_CURRENT_USER, m_key.GetPath() + L"\\below");
    EXPECT_TRUE(below.SetLongValue(L"a", 1)); // creates both keys
    EXPECT_TRUE(below.DeleteValue(L"a"));
    EXPECT_TRUE(below.DeleteValue(L"a"));
    EXPECT_TRUE(below.Exists());
    EXPECT_TRUE(m_key.DeleteKey());
    EXPECT_TRUE(m_key.DeleteKey());
    EXPECT_FALSE(below.Exists());
    EXPECT_TRUE(below.DeleteValue(L"a"));
    EXPECT_FALSE(RegistryKey(HKEY_CURRENT_USER, L"").DeleteKey());
    EXPECT_TRUE(RegistryKey(HKEY_CURRENT_USER, L"Software").Exists());
}

TEST_F(Registry, UserDataLivesUnderTheUsersKey)
{
    EXPECT_TRUE(User::GetUserDataBooleanFromRegistry(m_name, L"ShowDialog229", true));
    User::StoreUserDataBooleanInRegistry(m_name, L"ShowDialog229", false);
    EXPECT_FALSE(User::GetUserDataBooleanFromRegistry(m_name, L"ShowDialog229", true));
    EXPECT_EQ(m_key.GetLongValue(L"ShowDialog229", 7), 0);

    const ByteBuffer stored(CXString(L"10.0.0.1"));
    ByteBuffer read;
    User::StoreUserDataBytesInRegistry(m_name, L"Subnets", stored);
    EXPECT_TRUE(User::GetUserDataBytesFromRegistry(m_name, L"Subnets", read));
    EXPECT_EQ(read, stored);
}

TEST_F(Registry, UserDataThatCannotBeStoredIsReported)
{
    const std::wstring longName(300, L'x'); // a key's name has at most 255 characters
    try {
        User::StoreUserDataBooleanInRegistry(CXString(std::wstring_view(longName)), L"key", true);
        FAIL() << "nothing thrown";
    } catch (const OrvikException& exception) {
        // Thrown by another module than this one.
        EXPECT_EQ(exception.GetFunction(), L"User::StoreUserDataBooleanInRegistry");
        EXPECT_EQ(exception.GetFile(), L"user.cpp");
        EXPECT_GT(exception.GetMessageText().Find(L"\"key\""), 0);
    }
}

TEST(User, HasAnApplicationDirectory)
{
    const CXString directory = User::GetUserApplicationDirectory();
    const DWORD attributes = GetFileAttributesW(directory.c_str());
    EXPECT_TRUE(attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY))
        << directory.ToUtf8();
}

} // namespace
