#pragma once

#include "authoring/markdown_compiler.h"
#include "coursetool/markdown_source.h"
#include "page/faces/font_book.h"

namespace test_support {

/// The compiler of Markdown that `build` has in the tool.
inline coursetool::CompilerSource courseCompiler() {
    return [] {
        static const page::FontBook fonts;
        static const authoring::MarkdownCompiler compiler(fonts);
        return &compiler;
    };
}

} // namespace test_support
