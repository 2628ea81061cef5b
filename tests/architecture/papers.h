// Reading the papers of the repository for the tests that hold them to their word.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

using TTexts = std::vector<std::string>;

// The folder of the repository.
extern const std::filesystem::path ROOT;

std::string text_of(const std::filesystem::path& path);
TTexts lines_of(const std::filesystem::path& path);

// The parts of a table row, without its outer bars and the blanks at their ends.
TTexts cells_of(const std::string& line);

// The texts between backquotes.
TTexts codes_of(const std::string& cell);
