#pragma once

#include "authoring/compiled.h"

#include <map>
#include <string>

namespace preview {

/// Compiles a text once: what it has compiled for the course as it stands it gives again. So a
/// build compiles only what has changed since the one before.
class RememberingCompiler : public authoring::Compiler {
public:
    /// `compiler` must outlive it.
    explicit RememberingCompiler(const authoring::Compiler& compiler) : compiler_(compiler) {}

    authoring::CompiledPage page(std::string_view markdown, int firstLine,
                                 std::string_view title) const override;
    authoring::CompiledQuestion question(std::string_view markdown, int firstLine,
                                         std::optional<int> askedType) const override;

    /// Forgets what nobody has asked for since the last call.
    void forgetUnused();
    /// How many texts it had to compile so far.
    int compiled() const { return compiled_; }

private:
    template <class Result>
    struct Kept {
        Result result;
        bool used = true;
    };
    template <class Result>
    using Memory = std::map<std::string, Kept<Result>>; ///< by all that was asked

    template <class Result, class Compile>
    const Result& recall(Memory<Result>& memory, std::string key, Compile compile) const;

    const authoring::Compiler& compiler_;
    mutable Memory<authoring::CompiledPage> pages_;
    mutable Memory<authoring::CompiledQuestion> questions_;
    mutable int compiled_ = 0;
};

} // namespace preview
