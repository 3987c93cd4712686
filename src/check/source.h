#pragma once

#include "coursetool/report.h"
#include "markup/directive_table.h"

#include <QString>

#include <string>
#include <vector>

namespace check {

/// One line of a source, as the renderer takes it apart. The views are into the source's text.
struct Line {
    int number = 0; ///< from 1
    QStringView text;
    bool isDirective = false;
    QStringView directive;                   ///< what follows "##"
    const markup::Directive* what = nullptr; ///< the longest form that matches; null for none
    /// The form that counts only for exactly its keyword, which the line goes beyond, when it is
    /// longer than what matches; null for none.
    const markup::Directive* wholeAhead = nullptr;

    /// What follows the keyword; the whole directive when it is none.
    QStringView argument() const {
        return what ? directive.sliced(what->keyword.size()) : directive;
    }
    /// Whether the line's form is one of those that these functions carry out.
    template <class... Run>
    bool runs(Run... run) const {
        return what && ((what->run == run) || ...);
    }
    /// Whether the line shows something.
    bool isVisibleText() const;
};

/// The source of a page or question, or the comment on a wrong answer.
class Source {
public:
    enum class Kind { Page, Question, Comment };

    /// `text` has CR LF line ends, as in a database. `firstLine` is the line of the file on which
    /// it starts.
    Source(Kind kind, QString text, coursetool::Place start, std::string record, bool isEditable);
    Source() = default;

    Kind kind() const { return kind_; }
    const QString& text() const { return text_; }
    const std::vector<Line>& lines() const { return lines_; }
    /// What stands after the last line end: neither shown nor run.
    const Line& unended() const { return unended_; }

    const std::string& file() const { return start_.file; }
    const std::string& record() const { return record_; }
    bool isEditable() const { return isEditable_; }
    /// A line of the source in its file. Sources that are compiled from another text override it by
    /// giving the lines of that text.
    int fileLine(int number) const;
    void setFileLines(std::vector<int> lines) { fileLines_ = std::move(lines); }

private:
    Kind kind_ = Kind::Page;
    QString text_;
    std::vector<Line> lines_;
    Line unended_;
    coursetool::Place start_;
    std::string record_;
    bool isEditable_ = false;
    std::vector<int> fileLines_; ///< by line, when they do not just follow each other
};

/// The longest form that matches a directive, given without its "##"; null for none.
const markup::Directive* formOf(QStringView directive);

} // namespace check
