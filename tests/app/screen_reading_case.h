#pragma once

#include "app/end_to_end_case.h"
#include "support/screen_reader.h"

namespace app::test {

using test_support::ScreenReader;
using Object = ScreenReader::Object;

/// A course of two pages and one with a film and the order form, a test of two questions and a
/// simulation, with somebody who listens.
class ScreenReading : public EndToEnd {
protected:
    QString sources() override {
        const QString directory = directory_.filePath("sources");
        QDir().mkpath(directory + "/pages");
        QDir().mkpath(directory + "/exercises/chute");
        const auto write = [&](const char* name, const QByteArray& text) {
            test_support::writeFile(directory + u'/' + QString::fromLatin1(name), text);
        };
        write("pages/1.page",
              "+++\nNumeropage = 1\nIndex = 1\ntitre = \"La chute\"\nmoteur = true\n+++\n##SI12\n"
              "##SI16\n##BOL1\nUne bille tombe¶\n##SI12\n##BOL0\n##DECLIG1\n"
              "Voir \n##LIERTles lois#PAG002\n ou \n##LIERTle test#EXO003\n ;¶\n##DECLIG1\n"
              "essayer \n##LIERTla simulation#EXE230\n.¶\n##DECLIG1\n"
              "##LIERFME\n##ADMENLes lois#PAG002\n##ADMENLe test#EXO003\n¶\n##DECLIG2\n"
              "v = \n##FRACd#t\n¶\n##DECLIG2\n– un¶\n– deux¶\n##DECLIG1\n"
              "##TAB000090 1\nd¶\n##TAB090160 2\nt¶\n##FINTAB\n");
        write("pages/2.page", "+++\nNumeropage = 2\nIndex = 2\ntitre = \"Les lois\"\nimprimable = "
                              "true\nmoteur = true\n+++\n"
                              "##SI12\nRien ne change la chute sinon l’air.¶\n");
        write("pages/3.page", "+++\nNumeropage = 3\nIndex = 3\ntitre = \"Le film\"\nmoteur = true\n"
                              "+++\n##SI12\nOn peut \n##LIERTle commander#BDC000\n.¶\n"
                              "##VIDEOfilm.avi\n");
        write("exercises/chute/chapter.toml", "Chapitre = 3\nTitre = \"La chute\"\nNbquest = 2\n");
        write("exercises/chute/301.question",
              "+++\nREFERENCE = 301\ntype = 2\nsolution = \"01000\"\n+++\n##SI12\nQui tombe ?¶\n"
              "##PIY010\n##PIX048\n##EXOOP\n##PIX004\nla table¶\n"
              "##PIY010\n##PIX048\n##EXOOP\n##PIX004\nla pomme¶\n+++\n");
        write("exercises/chute/302.question", "+++\nREFERENCE = 302\ntype = 3\nsolution = \"g\"\n"
                                              "+++\n##SI12\nla pesanteur : \n##EXOTX\n¶\n+++\n");
        return directory;
    }

    QProcessEnvironment environment() const override {
        auto environment = EndToEnd::environment();
        reader_.tellTo(environment);
        return environment;
    }

    /// The window of that title, once it is there.
    Object window(const QString& title) {
        Object found;
        EXPECT_TRUE(eventually([&] {
            found = reader_.window(title);
            return !found.isNull();
        })) << title.toStdString();
        return found;
    }

    /// Role and name of what has the keyboard.
    std::string focus() const {
        const Object focused = reader_.focused();
        return (reader_.role(focused) + u' ' + reader_.name(focused)).toStdString();
    }
    bool isAt(const std::string& place) {
        return eventually([&] { return focus() == place; });
    }

    /// Goes on with the Tab key until the keyboard is there.
    testing::AssertionResult tabTo(const std::string& wanted) {
        std::string passed;
        for (int stops = 0; stops < 60; ++stops) {
            const int before = reader_.focusMoves();
            press("Tab");
            if (!eventually([&] { return reader_.focusMoves() > before; }))
                return testing::AssertionFailure() << "the keyboard stays at " << focus();
            if (focus() == wanted)
                return testing::AssertionSuccess();
            passed += focus() + ", ";
        }
        return testing::AssertionFailure() << wanted << " is none of " << passed;
    }

    /// Whether this is announced; blanks that do not break are as good as others.
    testing::AssertionResult hears(const QString& words) {
        const auto heard = [&] {
            return QStringList(reader_.heard()).replaceInStrings(QStringLiteral("\u00A0"), " ");
        };
        if (eventually([&] { return heard().contains(words); }))
            return testing::AssertionSuccess();
        return testing::AssertionFailure() << heard().join(QStringLiteral(" | ")).toStdString();
    }

    std::string outline(const Object& top) const {
        return reader_.outline(top).join(u'\n').toStdString();
    }

    ScreenReader reader_;
};

} // namespace app::test
