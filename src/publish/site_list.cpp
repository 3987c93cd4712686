#include "publish/site_list.h"

#include "coursetool/paths.h"
#include "files/cause.h"
#include "files/whole_file.h"
#include "files/within.h"

#include <QFile>
#include <QRegularExpression>

#include <algorithm>
#include <set>

namespace publish {

namespace fs = std::filesystem;

namespace {

constexpr char kHead[] =
    "# Ce que orvalente-cours a publié dans ce dossier : il en efface ce qui ne sert plus.\n";
/// No site has as many files; a longer list is none of ours.
constexpr qint64 kLongestBytes = 16 << 20;

/// Files are ours by their names too: somebody may have written in the list.
bool isOurName(const QString& name) {
    static const QRegularExpression ours(
        QStringLiteral("^(?:(?:pages|tests|programme|polices|films|simulations)/"
                       ")?[A-Za-z0-9-]+-[0-9a-f]{10}\\.[a-z0-9]{2,5}$"));
    return ours.match(name).hasMatch();
}

} // namespace

bool SiteList::isIn(const fs::path& folder) {
    QFile file(QString::fromStdString(coursetool::shown(folder / kName)));
    return files::isFileWithin(folder / kName, folder) && file.open(QIODevice::ReadOnly) &&
           file.read(sizeof kHead - 1) == kHead;
}

SiteList::SiteList(fs::path folder, coursetool::Report& report)
    : folder_(std::move(folder)), path_(folder_ / kName), report_(report) {}

void SiteList::open() {
    QFile file(QString::fromStdString(coursetool::shown(path_)));
    if (!files::isFileWithin(path_, folder_) || !file.open(QIODevice::ReadOnly) ||
        file.size() > kLongestBytes)
        return;
    for (const QByteArray& line : file.readAll().split('\n')) {
        const QString name = QString::fromUtf8(line.mid(2));
        if (!isOurName(name) || line[1] != ' ')
            continue;
        if (line[0] == '+')
            files_.emplace(name, State::Begun);
        else if (line[0] == '=' || line[0] == '-')
            files_[name] = line[0] == '=' ? State::Current : State::Former;
    }
}

bool SiteList::begin(const QString& name) {
    if (!isOurName(name) || files_.contains(name))
        return true;
    if (!begun_.is_open()) {
        // Anew: the last line may be half a one, and the file a link to somebody else's.
        if (!write())
            return false;
        begun_.open(path_, std::ios::app | std::ios::binary);
    }
    begun_ << "+ " << name.toStdString() << '\n' << std::flush;
    if (!begun_) {
        report_.failure(path_, files::kFileNotWritten, files::lastError());
        return false;
    }
    files_.emplace(name, State::Begun);
    return true;
}

void SiteList::finish(const std::vector<QString>& names) {
    begun_.close();
    std::set<QString> needed;
    std::copy_if(names.begin(), names.end(), std::inserter(needed, needed.end()), isOurName);
    std::set<QString> before;
    for (const auto& [name, state] : files_)
        if (state == State::Current)
            before.insert(name);
    // The same again is no new edition, and makes nothing older.
    const bool isNew = needed != before;
    for (auto file = files_.begin(); file != files_.end();) {
        const bool isKept = needed.contains(file->first) ||
                            (isNew ? before.contains(file->first) : file->second == State::Former);
        if (isKept)
            file->second = State::Former;
        if (isKept || !remove(file->first))
            ++file; // what cannot be removed now may be another time
        else
            file = files_.erase(file);
    }
    for (const QString& name : needed)
        files_[name] = State::Current;
    write();
}

bool SiteList::write() {
    std::string text = kHead;
    for (const auto& [name, state] : files_)
        text += (state == State::Current  ? "= "
                 : state == State::Former ? "- "
                                          : "+ ") +
                name.toStdString() + '\n';
    std::error_code error;
    if (fs::is_symlink(fs::symlink_status(path_, error)))
        fs::remove(path_, error);
    files::WholeFile file(path_);
    if (file.write(text) && file.putInPlace())
        return true;
    report_.failure(path_, files::kFileNotWritten, file.error());
    return false;
}

bool SiteList::remove(const QString& name) const {
    const fs::path path = folder_ / coursetool::pathFrom(name.toStdString());
    std::error_code error;
    const fs::file_status status = fs::symlink_status(path, error);
    if (!fs::exists(status))
        return true;
    return fs::is_regular_file(status) && files::isFreeOfLinks(path, folder_) &&
           fs::remove(path, error);
}

} // namespace publish
