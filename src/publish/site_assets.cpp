#include "publish/site_assets.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <span>

namespace publish {

namespace {

// In the order in which they need each other.
/// What shows pages: these come with the first one.
constexpr const char* kPageScripts[] = {"course.js",   "dialogs.js", "page.js",
                                        "progress.js", "scorm.js",   "site.js"};
/// What one asks for on a page.
constexpr const char* kToolScripts[] = {"program.js", "search.js", "calculator.js",
                                        "test.js",    "film.js",   "contents.js"};
constexpr const char* kSimulationScripts[] = {"plot.js",
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
                                              "modules.js"};

QByteArray resource(const QString& name) {
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// With ends of lines as browsers hash them, whatever those of the sources are.
QByteArray asset(const QString& name) {
    return resource(QStringLiteral(":/publish/") + name).replace("\r\n", "\n");
}

QByteArray together(std::span<const char* const> names) {
    QByteArray all;
    for (const char* name : names)
        all += asset(QStringLiteral("site/") + QLatin1String(name));
    return all;
}

/// The drawings of the shell's buttons, by their names: those that these scripts name, or the
/// others.
QByteArray icons(const QByteArray& scripts, bool named) {
    QJsonObject found;
    const QDir folder(QStringLiteral(":/look/icons"));
    for (const QString& file : folder.entryList({QStringLiteral("*.svg")})) {
        const QString name = QString(file).chopped(4);
        if (scripts.contains('\'' + name.toLatin1() + '\'') == named)
            found.insert(name, QString::fromUtf8(resource(folder.filePath(file))));
    }
    return QJsonDocument(found).toJson(QJsonDocument::Compact);
}

/// The end of a script that is loaded when it is needed: it has arrived.
QByteArray arrival(const QString& key) {
    return "orvalente.recevoir(\"" + key.toLatin1() + "\",true);\n";
}

} // namespace

QByteArray SiteAssets::plan(const QString& title, const QByteArray& texts) {
    QByteArray page = asset(QStringLiteral("site/texte.html"));
    return page.replace("{titre}", title.toHtmlEscaped().toUtf8()).replace("{textes}", texts);
}

QJsonObject SiteAssets::writeLater() {
    const QString tools = QStringLiteral("outils");
    const QString simulations = QStringLiteral("simulations");
    const QByteArray toolScripts = "Object.assign(ICONES," + icons(together(kPageScripts), false) +
                                   ");\n" + together(kToolScripts) + arrival(tools);
    const QByteArray simulationScripts = together(kSimulationScripts) + arrival(simulations);
    const QString folder = QStringLiteral("programme/");
    const QString style = QStringLiteral("style");
    return {{tools, site_.add(folder + tools, ".js", toolScripts)},
            {simulations, site_.add(folder + simulations, ".js", simulationScripts)},
            {style, site_.add(folder + simulations, ".css",
                              asset(QStringLiteral("site/simulation.css")))}};
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
    // The style comes with the page, so that faces are asked for at once and not after the scripts,
    // which wait for style sheets; the page's policy knows it by its hash.
    const QByteArray style = faces + asset(QStringLiteral("site/style.css"));
    index.replace("{style}", style);
    index.replace("{empreinte}",
                  QCryptographicHash::hash(style, QCryptographicHash::Sha256).toBase64());
    const QByteArray scripts = together(kPageScripts);
    put("{programme}", site_.add(QStringLiteral("orvalente"), ".js",
                                 "const ICONES = " + icons(scripts, true) + ";\n" + scripts));
    put("{cours}", site_.add(QStringLiteral("cours"), ".js", course));
    put("{premiere}", firstPage);
    put("{icone}", site_.add(QStringLiteral("icone"), ".svg",
                             resource(QStringLiteral(":/look/icons/orvalente.svg"))));
    put("{texte}", site_.add(QStringLiteral("texte"), ".html", plan(title, texts)));
    put("{titre}", title);
    return index;
}

} // namespace publish
