// Feeds the readers what is kept for each of them: what broke once stays mended.
//   readers_feed FOLDER   with a folder for each reader, of its name
#include <array>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

extern "C" int LLVMFuzzerInitialize(int* count, char*** words);
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size);

int main(int, char** words)
{
    int fed = 0;
    for (const auto& folder : std::filesystem::directory_iterator(words[1])) {
        std::string name = folder.path().filename().string();
        std::array<char*, 3> choice = {words[0], name.data(), nullptr};
        char** first = choice.data();
        int count = 2;
        LLVMFuzzerInitialize(&count, &first);
        for (const auto& entry : std::filesystem::directory_iterator(folder)) {
            std::ifstream file(entry.path(), std::ios::binary);
            const std::string text{std::istreambuf_iterator<char>(file), {}};
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(text.data()), text.size());
            ++fed;
        }
    }
    std::printf("%d texts\n", fed);
    return fed > 0 ? 0 : 1;
}
