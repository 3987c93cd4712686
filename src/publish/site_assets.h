#pragma once

#include "publish/site_folder.h"

#include <QByteArray>
#include <QJsonObject>
#include <QString>

namespace publish {

/// What every site is made of beside its course: the page that holds everything, its style and its
/// scripts (site/), the shell's icons, and the licences of the faces.
class SiteAssets {
public:
    explicit SiteAssets(SiteFolder& site) : site_(site) {}

    /// Writes what the first page does without, and gives its names: the script of windows, tests
    /// and films ("outils"), that of simulations ("simulations") and their style ("style").
    QJsonObject writeLater();

    /// Writes all the rest but the first page, which it gives. `faces` are rules of the style
    /// sheet, `course` the script that tells of the pages, `firstPage` the name of the first one's,
    /// which comes with them, `texts` what the pages say, as HTML.
    QByteArray write(const QString& title, const QByteArray& faces, const QByteArray& course,
                     const QString& firstPage, const QByteArray& texts);

private:
    QByteArray plan(const QString& title, const QByteArray& texts);

    SiteFolder& site_;
};

} // namespace publish
