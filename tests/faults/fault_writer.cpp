// What the shell changes in place, as a program of its own that can fail and die:
//   fault_writer edit DATABASE TABLE COLUMN LENGTH   the first record's text
//   fault_writer status FILE TEXT                    records 1 to 32

#include "jet/editor.h"
#include "shell/status_file.h"

#include <QCoreApplication>

#include <cstdio>
#include <string>

namespace {

constexpr int kNotWritten = 74;

int edit(const QStringList& words) {
    auto editor = jet::DatabaseEditor::open(words[0].toStdU16String());
    const std::u16string text(words[3].toUInt(), u'é');
    const auto changed =
        editor ? editor->changeText(words[1].toStdU16String(), 0, words[2].toStdU16String(), text)
               : jet::Result<void>(editor.error());
    if (changed)
        return 0;
    std::fprintf(stderr, "%s\n", changed.error().sentence.c_str());
    return kNotWritten;
}

int status(const QStringList& words) {
    QStringList texts;
    while (texts.size() < shell::StatusFile::kEditionRecord)
        texts.append(words[1] + QString::number(texts.size()));
    if (shell::StatusFile(words[0]).write(1, texts))
        return 0;
    std::fprintf(stderr, "%s : not written : the caller knows\n", qUtf8Printable(words[0]));
    return kNotWritten;
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    return words[1] == u"edit" ? edit(words.mid(2)) : status(words.mid(2));
}
