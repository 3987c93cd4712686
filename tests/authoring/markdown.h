#pragma once

#include "authoring/compiled.h"
#include "page/faces/font_book.h"

#include <QStringList>

#include <filesystem>
#include <string>
#include <vector>

/// The faces that pages are set in, and the compiler that measures with them.
const page::FontBook& fonts();
const authoring::Compiler& compiler();

/// What a page compiles to, and its faults as "LINE:COLUMN sentence", one a line.
std::string compiled(const std::string& markdown);
std::string faultsOf(const std::string& markdown);
std::string told(const std::vector<authoring::Fault>& faults);

/// A file of sources without its front matter.
std::string bodyOf(const std::filesystem::path& file);
std::string readFile(const std::filesystem::path& file);

/// What a compiled text prints, styles left aside: a blank between lines of the page.
QString printed(const authoring::CompiledText& text);

/// The words of a Markdown source that have to stand on its page: those of four letters and more
/// outside targets, commands, fences and comments.
/// Small letters of the source that stand less often on the page than in it.
QString lostLetters(const std::string& markdown, const QString& shown);

QStringList wordsToPrint(const std::string& markdown);
