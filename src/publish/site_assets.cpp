#include "publish/site_assets.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <span>

namespace publish {

namespace {

/// In the order in which they need each other.
constexpr const char* kScripts[] = {"program.js",
                                    "course.js",
                                    "dialogs.js",
                                    "page.js",
                                    "search.js",
                                    "calculator.js",
                                    "progress.js",
                                    "test.js",
                                    "film.js",
                                    "scorm.js",
                                    "contents.js",
                                    "plot.js",
                                    "tabs.js",
                                    "transport.js",
                                    "formula.js",
                                    "simulation.js",
                                    "simulation-controls.js",
                                    "simulation-parts.js",
                                    "simulation-view.js",
                                    "module-lens-plot.js",
                                    "module-lens.js",
                                    "module-projectile-plots.js",
                                    "module-projectile.js",
                                    "module-reaction.js",
                                    "modules.js",
                                    "site.js"};
constexpr const char* kStyles[] = {"style.css", "simulation.css"};

QByteArray resource(const QString& name) {
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray asset(const QString& name) {
    return resource(QStringLiteral(":/publish/") + name);
}

QByteArray together(std::span<const char* const> names) {
    QByteArray all;
    for (const char* name : names)
        all += asset(QStringLiteral("site/") + QLatin1String(name));
    return all;
}

/// The drawings of the shell's buttons, by their names.
QByteArray iconsScript() {
    QJsonObject icons;
    const QDir folder(QStringLiteral(":/look/icons"));
    for (const QString& name : folder.entryList({QStringLiteral("*.svg")}))
        icons.insert(QString(name).chopped(4), QString::fromUtf8(resource(folder.filePath(name))));
    return "const ICONES = " + QJsonDocument(icons).toJson(QJsonDocument::Compact) + ";\n";
}

} // namespace

QByteArray SiteAssets::plan(const QString& title, const QByteArray& texts) {
    QByteArray page = asset(QStringLiteral("site/texte.html"));
    return page.replace("{titre}", title.toHtmlEscaped().toUtf8()).replace("{textes}", texts);
}

QByteArray SiteAssets::write(const QString& title, const QByteArray& faces,
                             const QByteArray& course, const QString& firstPage,
                             const QByteArray& texts) {
    site_.add(QStringLiteral("polices/LICENCES"), ".txt",
              asset(QStringLiteral("site/licences.txt")));
    QByteArray index = asset(QStringLiteral("site/index.html"));
    const auto put = [&](const char* place, const QString& text) {
        index.replace(place, text.toHtmlEscaped().toUtf8());
    };
    put("{style}", site_.add(QStringLiteral("style"), ".css", faces + together(kStyles)));
    put("{programme}",
        site_.add(QStringLiteral("orvalente"), ".js", iconsScript() + together(kScripts)));
    put("{cours}", site_.add(QStringLiteral("cours"), ".js", course));
    put("{premiere}", firstPage);
    put("{icone}", site_.add(QStringLiteral("icone"), ".svg",
                             resource(QStringLiteral(":/look/icons/orvalente.svg"))));
    put("{texte}", site_.add(QStringLiteral("texte"), ".html", plan(title, texts)));
    put("{titre}", title);
    return index;
}

} // namespace publish
