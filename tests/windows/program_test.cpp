// What the program's file carries, as the system reads it.
#include <gtest/gtest.h>

#include <fstream>
#include <string>
#include <string_view>

#include <windows.h>

namespace
{

std::string_view Resource(HMODULE file, LPCWSTR name, LPCWSTR type)
{
    const HRSRC place = FindResourceW(file, name, type);
    const HGLOBAL held = place == nullptr ? nullptr : LoadResource(file, place);
    return held == nullptr ? std::string_view()
                           : std::string_view(static_cast<const char*>(LockResource(held)),
                                              SizeofResource(file, place));
}

TEST(WindowsProgram, CarriesIconsVersionAndManifest)
{
    const HMODULE file = LoadLibraryExA(TESSARINE_PROGRAM, nullptr, LOAD_LIBRARY_AS_DATAFILE);
    ASSERT_NE(file, nullptr);
    for (const int pixels : {16, 32, 48, 256}) {
        const HANDLE icon = LoadImageW(file, L"IDI_ICON1", IMAGE_ICON, pixels, pixels, 0);
        ICONINFO facts{};
        BITMAP bitmap{};
        ASSERT_TRUE(GetIconInfo(static_cast<HICON>(icon), &facts)) << pixels;
        GetObjectW(facts.hbmColor, sizeof bitmap, &bitmap);
        EXPECT_EQ(bitmap.bmWidth, pixels);
        EXPECT_EQ(bitmap.bmHeight, pixels);
    }
    const std::string_view manifest = Resource(file, MAKEINTRESOURCEW(1), MAKEINTRESOURCEW(24));
    EXPECT_NE(manifest.find(">PerMonitorV2<"), manifest.npos);
    EXPECT_NE(manifest.find("level=\"asInvoker\""), manifest.npos);

    std::string block(GetFileVersionInfoSizeA(TESSARINE_PROGRAM, nullptr), '\0');
    ASSERT_TRUE(
        GetFileVersionInfoA(TESSARINE_PROGRAM, 0, static_cast<DWORD>(block.size()), block.data()));
    void* version = nullptr;
    UINT size = 0;
    ASSERT_TRUE(
        VerQueryValueA(block.data(), "\\StringFileInfo\\040904B0\\ProductVersion", &version, &size));
    EXPECT_STREQ(static_cast<const char*>(version), TESSARINE_VERSION);
}

TEST(WindowsProgram, OpensNoConsole)
{
    std::ifstream file(TESSARINE_PROGRAM, std::ios::binary);
    IMAGE_DOS_HEADER first{};
    IMAGE_NT_HEADERS64 head{};
    file.read(reinterpret_cast<char*>(&first), sizeof first);
    file.seekg(first.e_lfanew);
    file.read(reinterpret_cast<char*>(&head), sizeof head);
    EXPECT_EQ(head.Signature, DWORD{IMAGE_NT_SIGNATURE});
    EXPECT_EQ(head.OptionalHeader.Subsystem, WORD{IMAGE_SUBSYSTEM_WINDOWS_GUI});
}

} // namespace
