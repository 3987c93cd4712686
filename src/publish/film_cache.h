#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace publish {

/// Converted films, kept for the next publishing of any course: a package is made from nothing each
/// time, and a film takes as long as it lasts. They stand in the person's cache folder, which may
/// be emptied at any time; without one every film is converted anew.
class FilmCache {
public:
    /// What the folder may hold, in bytes; what was not used for longest goes first.
    static constexpr qint64 kMostBytes = qint64{1} << 30;

    /// Under the system's folder for what can be made again.
    FilmCache();
    explicit FilmCache(QString folder, qint64 mostBytes = kMostBytes);

    /// A film by the hash, in hexadecimal digits, of what it was made from and how.
    std::optional<QByteArray> find(const QByteArray& hash) const;
    /// Keeps it if that can be done.
    void keep(const QByteArray& hash, const QByteArray& film) const;

private:
    void makeRoom() const;
    QString pathOf(const QByteArray& hash) const;

    QString folder_;
    qint64 mostBytes_;
};

} // namespace publish
