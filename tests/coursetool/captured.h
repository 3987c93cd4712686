#pragma once

#include "coursetool/output_buffer.h"

#include <cstdio>
#include <sstream>
#include <string>
#include <vector>

/// What `write` writes through the buffer that it gets.
template <class Write>
std::string captured(Write write) {
    std::FILE* stream = std::tmpfile();
    coursetool::OutputBuffer out(stream);
    write(out);
    std::rewind(stream);
    std::string text;
    for (int c; (c = std::fgetc(stream)) != EOF;)
        text += static_cast<char>(c);
    std::fclose(stream);
    return text;
}

/// The same line by line.
template <class Write>
std::vector<std::string> capturedLines(Write write) {
    std::istringstream text(captured(write));
    std::vector<std::string> lines;
    for (std::string line; std::getline(text, line);)
        lines.push_back(line);
    return lines;
}
