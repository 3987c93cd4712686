#pragma once

#include "support/fake_voice.h"
#include "viewer/action_dispatcher.h"
#include "viewer/collaborators.h"

#include <QStringList>

#include <functional>
#include <utility>

namespace test_support {

/// What stands beside the main window: each notes in `log` what it was asked for.
struct FakeCollaborators {
    struct Window : viewer::ModalWindow {
        Window(QStringList& calls, QString text) : log(calls), name(std::move(text)) {}
        void open() override {
            log.append(name);
            if (whileOpen)
                whileOpen();
        }
        QStringList& log;
        QString name;
        std::function<void()> whileOpen;
    };

    struct Search : viewer::SearchWindow {
        explicit Search(QStringList& calls) : window(calls, QStringLiteral("search")) {}
        void open() override { window.open(); }
        viewer::FoundWords foundWords() const override { return words; }
        Window window;
        viewer::FoundWords words;
    };

    struct Video : viewer::VideoDevice {
        explicit Video(QStringList& calls) : log(calls) {}
        void close() override { log.append(QStringLiteral("close video")); }
        void press(int index) override { log.append(QStringLiteral("video %1").arg(index)); }
        void seek(double share) override { log.append(QStringLiteral("seek %1").arg(share)); }
        void refresh() override { log.append(QStringLiteral("refresh video")); }
        QStringList& log;
    };

    struct Links : viewer::PageLinks {
        explicit Links(QStringList& calls) : log(calls) {}
        void reset() override {
            log.append(QStringLiteral("free links"));
            if (whileResetting)
                whileResetting();
        }
        void show() override { log.append(QStringLiteral("show links")); }
        void resetHighlight(int kept) override {
            ++highlightResets;
            lastKept = kept;
        }
        QStringList& log;
        std::function<void()> whileResetting;
        int highlightResets = 0;
        int lastKept = 0;
    };

    struct Printing : viewer::PagePrinting {
        explicit Printing(QStringList& calls) : log(calls) {}
        void print() override { log.append(QStringLiteral("print")); }
        QStringList& log;
    };

    struct Updates : viewer::UpdateCheck {
        bool confirmUpdateIsPossible() override { return possible; }
        bool possible = true;
    };

    struct Modules : viewer::ModuleStarter {
        explicit Modules(QStringList& calls) : log(calls) {}
        void launchModule(std::int16_t code) override {
            log.append(QStringLiteral("launch %1").arg(code));
        }
        QStringList& log;
    };

    viewer::Collaborators all() { return allWith(links); }
    viewer::Collaborators allWith(viewer::PageLinks& pageLinks) {
        return {video,  pageLinks,  printing, updates,      exercise,   orderForm,
                search, calculator, help,     installation, exitScreen, reading};
    }

    QStringList log;
    Video video{log};
    Links links{log};
    Printing printing{log};
    Updates updates;
    Modules modules{log};
    Window exercise{log, QStringLiteral("exercise")};
    Window orderForm{log, QStringLiteral("order form")};
    Search search{log};
    Window calculator{log, QStringLiteral("calculator")};
    Window help{log, QStringLiteral("help")};
    Window installation{log, QStringLiteral("installation")};
    Window exitScreen{log, QStringLiteral("exit screen")};
    FakeVoices voices;
    viewer::ReadingAloud reading{voices.maker()};
};

} // namespace test_support
