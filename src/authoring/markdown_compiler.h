#pragma once

#include "authoring/compiled.h"
#include "authoring/ruler.h"

namespace authoring {

/// Compiles with the widths of `metrics`, which must outlive it.
class MarkdownCompiler : public Compiler {
public:
    explicit MarkdownCompiler(const page::TextMetrics& metrics) : ruler_(metrics) {}

    CompiledPage page(std::string_view markdown, int firstLine,
                      std::string_view title) const override;
    CompiledQuestion question(std::string_view markdown, int firstLine,
                              std::optional<int> askedType) const override;

private:
    Ruler ruler_;
};

} // namespace authoring
