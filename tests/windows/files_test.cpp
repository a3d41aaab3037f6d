// Files on Windows. What lies on the disk is made and looked at with the system's own calls.
#include "desktop/files.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include <windows.h>

namespace tessarine::files
{
namespace
{

/// A folder whose name no code page of the system holds as a whole.
class WindowsFiles : public testing::Test
{
protected:
    WindowsFiles()
    {
        wchar_t temporary[MAX_PATH];
        GetTempPathW(MAX_PATH, temporary);
        folder = temporary + (L"Пасьянс für ひとり " + std::to_wstring(GetCurrentProcessId()));
        CreateDirectoryW(folder.c_str(), nullptr);
        utf8 = ToUtf8(folder);
    }
    ~WindowsFiles() override { std::filesystem::remove_all(folder); }

    static std::string ToUtf8(const std::wstring& text)
    {
        std::string bytes(text.size() * 4, '\0');
        const int length =
            WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), bytes.data(),
                                static_cast<int>(bytes.size()), nullptr, nullptr);
        bytes.resize(static_cast<std::size_t>(length));
        return bytes;
    }
    std::string OnDisk(const wchar_t* name) const
    {
        std::ifstream file(std::filesystem::path(folder + L"\\" + name), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    HANDLE Hold(const wchar_t* name, DWORD share) const
    {
        return CreateFileW((folder + L"\\" + name).c_str(), GENERIC_READ, share, nullptr, OPEN_EXISTING,
                           0, nullptr);
    }
    FileFault Write(const std::string& name, std::string_view bytes) const
    {
        return WriteNew(PathOf(utf8 + name), bytes);
    }

    std::wstring folder;
    std::string utf8;
};

TEST_F(WindowsFiles, NamesOfAnyScriptAreTheSystemsNames)
{
    EXPECT_EQ(Write("\\сохранено;01.gam", "00\r\n"), FileFault::None);
    EXPECT_EQ(OnDisk(L"сохранено;01.gam"), "00\r\n");
    const std::string before = CurrentFolder();
    ChangeFolder(utf8);
    EXPECT_EQ(CurrentFolder(), utf8); // with "\" as it came
    EXPECT_EQ(Read("сохранено;01.gam").text, "00\r\n");
    EXPECT_TRUE(IsPlain(utf8 + "/СОХРАНЕНО;01.GAM")) << "case and kind of separator make no difference";
    ChangeFolder(before);
}

TEST_F(WindowsFiles, AFileThatAnotherProgramHoldsStaysAsItIs)
{
    for (const DWORD share : {DWORD{0}, DWORD{FILE_SHARE_READ}}) {
        EXPECT_EQ(Write("\\held", "old"), FileFault::None);
        EXPECT_EQ(Write("\\held.part", "new"), FileFault::None);
        const HANDLE holder = Hold(L"held", share);
        EXPECT_EQ(Write("\\held", "new"), FileFault::InUse);
        EXPECT_EQ(Rename(PathOf(utf8 + "\\held.part"), PathOf(utf8 + "\\held")), FileFault::InUse);
        EXPECT_EQ(static_cast<bool>(Read(utf8 + "\\held")), share != 0);
        CloseHandle(holder);
        EXPECT_EQ(OnDisk(L"held"), "old");
        EXPECT_EQ(Rename(PathOf(utf8 + "\\held.part"), PathOf(utf8 + "\\held")), FileFault::None);
        EXPECT_EQ(OnDisk(L"held"), "new");
    }
}

TEST_F(WindowsFiles, AttributesProtectAndHide)
{
    const std::string path = utf8 + "\\file";
    EXPECT_EQ(Write("\\file", "old"), FileFault::None);
    SetFileAttributesW((folder + L"\\file").c_str(), FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(PlaceToWrite(path).fault, FileFault::Forbidden);
    EXPECT_TRUE(IsPlain(path));
    SetFileAttributesW((folder + L"\\file").c_str(), FILE_ATTRIBUTE_HIDDEN);
    EXPECT_TRUE(PlaceToWrite(path));
    EXPECT_FALSE(IsPlain(path));
    EXPECT_EQ(Read(path).text, "old");
    SetFileAttributesW((folder + L"\\file").c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(WindowsFiles, FoldersDevicesAndLongPathsAreToldApart)
{
    EXPECT_EQ(Read(utf8).fault, FileFault::IsFolder);
    EXPECT_EQ(Read(utf8 + "\\none\\none.txt").fault, FileFault::Missing);
    EXPECT_EQ(Write("\\none\\none.txt", "new"), FileFault::Missing);
    EXPECT_EQ(Write("\\what?", "new"), FileFault::Missing);
    constexpr std::size_t longest = 250;
    const std::string name = '\\' + std::string(longest - folder.size() - 1, 'x');
    EXPECT_EQ(Write(name, "whole"), FileFault::None);
    EXPECT_EQ(Rename(PathOf(utf8 + name), PathOf(utf8 + name + ".part")), FileFault::None);
    EXPECT_EQ(Read(utf8 + name + ".part").text, "whole");
}

} // namespace
} // namespace tessarine::files
