// Reads what lies beside the program.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <regex>
#include <string>
#include <vector>

inline std::string ReadFile(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file.is_open()) << path;
    return {std::istreambuf_iterator<char>(file), {}};
}

/// What the brackets of the pattern matched, at each place of the text.
inline std::vector<std::vector<std::string>> Found(const std::string& text, const std::string& pattern)
{
    const std::regex search(pattern);
    std::vector<std::vector<std::string>> found;
    for (std::sregex_iterator at(text.begin(), text.end(), search), end; at != end; ++at) {
        found.emplace_back(at->begin() + 1, at->end());
    }
    return found;
}
