#include "raw_status_file.h"
#include "shell/start_up.h"
#include "shell/status_place.h"
#include "support/fake_message_boxes.h"
#include "support/fake_screen.h"
#include "support/files.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QTemporaryDir>

using platform::Message;
using shell::StartUp;

namespace {

/// Gives variables their old values back at the end.
class Environment {
public:
    explicit Environment(const QByteArrayList& names) {
        for (const QByteArray& name : names)
            before_.insert(name, qgetenv(name.constData()));
    }
    ~Environment() {
        for (auto it = before_.begin(); it != before_.end(); ++it)
            qputenv(it.key().constData(), it.value());
    }

private:
    QHash<QByteArray, QByteArray> before_;
};

} // namespace

/// Everything that start-up touches, writing down what is done to it.
class StartUpTest : public testing::Test,
                    public shell::StartUpWindow,
                    public shell::CourseBinding,
                    public shell::DisplayWarning {
protected:
    StartUpTest() {
        test_support::writeFile(directory_.filePath("ZEKX.MDB"), "not a database at all");
        state_.VideoOpen = true;
        state_.PictureDataDir = state_.VideoDataDir = "E:\\ZEKXV\\";
        for (int slot = 0; slot <= 40; ++slot)
            state_.SiblingProcessIds.store(slot, 77);
    }

    void setWidth(double twips) override { steps_ << QStringLiteral("width %1").arg(twips); }
    void place(const shell::Placement& at) override {
        steps_ << QStringLiteral("place %1 %2 %3 %4")
                      .arg(at.left)
                      .arg(at.top)
                      .arg(at.width)
                      .arg(at.height);
    }
    void pumpPendingMessages() override {
        steps_ << (raw_status_file::all(directory_.path()).isEmpty() ? "pump" : "pump, file there");
    }
    void bind(const QString& path) override {
        steps_ << "bind " + path.mid(directory_.path().size());
        screen_.width = widthAfterBinding_.value_or(screen_.width / 15) * 15;
    }
    Choice showModally() override {
        steps_ << QStringLiteral("warning %1").arg(state_.DisplayWarningMode);
        screen_.width += 100 * 15;
        return choice_;
    }

    StartUp::Outcome run() { return startUp_.run(); }

    QByteArray record(int number) const {
        return raw_status_file::characters(directory_.path(), number);
    }

    QTemporaryDir directory_;
    shell::SharedState state_;
    test_support::FakeScreen screen_{1024, 768};
    test_support::FakeMessageBoxes messageBoxes_;
    std::optional<double> widthAfterBinding_;
    Choice choice_ = Choice::Continue;
    QStringList steps_;
    StartUp startUp_{state_, directory_.path(), {screen_, messageBoxes_, *this, *this, *this}};
};

TEST_F(StartUpTest, runsItsStepsInOrder) {
    EXPECT_EQ(run(), StartUp::Outcome::GoOn);
    EXPECT_EQ(steps_,
              (QStringList{"width 12000", "bind /ZEKX.MDB", "pump", "place 1680 1260 12000 9000",
                           "pump, file there", "pump, file there"}));
    EXPECT_TRUE(messageBoxes_.messages.empty());
    EXPECT_EQ(startUp_.coverPath(), directory_.path() + "/couverture.jpg");
}

/// The database is bound when its pages and their pictures are there.
TEST_F(StartUpTest, finishesWhatABuildHasLeft) {
    const QDir course(directory_.path());
    course.mkpath(".orvalente-cours/nouveau");
    test_support::writeFile(course.filePath(".orvalente-cours/nouveau/a.bmp"), "neuf");
    test_support::writeFile(course.filePath(".orvalente-cours/journal"),
                            QByteArray("orvalente-cours 1\na.bmp\0\0", 25));
    EXPECT_EQ(run(), StartUp::Outcome::GoOn);
    EXPECT_EQ(test_support::readFile(course.filePath("a.bmp")), "neuf");
    EXPECT_FALSE(course.exists(".orvalente-cours"));
}

TEST_F(StartUpTest, leavesTheSharedStateReady) {
    run();
    EXPECT_EQ(state_.InstallDir, directory_.path() + '/');
    EXPECT_FALSE(state_.VideoOpen);
    EXPECT_EQ(state_.PictureDataDir + state_.VideoDataDir, "");
    EXPECT_EQ(state_.DisplayWarningMode, 0);
    EXPECT_TRUE(state_.HistoryRecording);
    const auto& names = state_.SiblingProgramNames;
    EXPECT_EQ(names.valueOr(0, "?") + names.valueOr(20, "?"), "");
    EXPECT_EQ(names.valueOr(1, ""), "SIMU01.EXE");
    EXPECT_EQ(names.valueOr(19, ""), "SIMU19.EXE");
    for (int slot = 0; slot <= 40; ++slot)
        EXPECT_EQ(*state_.SiblingProcessIds.slot(slot), slot >= 1 && slot <= 30 ? 0 : 77) << slot;
}

TEST_F(StartUpTest, resetsTheStatusFileOfAnEarlierSession) {
    test_support::writeFile(directory_.filePath(raw_status_file::kName),
                            raw_status_file::record("OUI", '#').repeated(33));
    run();
    for (int number = 1; number <= 31; ++number)
        EXPECT_EQ(record(number), "NON") << number;
    EXPECT_EQ(record(32), QStringLiteral("Collège et lycée").toLatin1());
    EXPECT_EQ(raw_status_file::all(directory_.path()).mid(32 * 128),
              raw_status_file::record("OUI", '#'));
}

TEST_F(StartUpTest, keepsAStatusFileOfThePersonsOwnBesideAnInstalledCourse) {
    const QTemporaryDir session, state, open;
    ASSERT_TRUE(QFile(open.path()).setPermissions(QFile::Permissions(0x7777)));
    const Environment restored({"XDG_RUNTIME_DIR", "XDG_STATE_HOME"});
    const QByteArray installed =
        raw_status_file::record("OUI").repeated(32) + raw_status_file::record("compl\xE8te");
    const struct {
        QString runtimeDir;
        QString place; ///< where the file is expected
    } rows[] = {{session.path(), session.path()},
                {open.path(), state.path()}, // anybody could put a file there first
                {"", state.path()},
                {"relative", state.path()}};
    for (const auto& row : rows) {
        test_support::writeFile(directory_.filePath(raw_status_file::kName), installed);
        raw_status_file::protect(directory_.path());
        qputenv("XDG_RUNTIME_DIR", row.runtimeDir.toLocal8Bit());
        qputenv("XDG_STATE_HOME", state.path().toLocal8Bit());
        EXPECT_EQ(run(), StartUp::Outcome::GoOn);
        EXPECT_EQ(raw_status_file::all(directory_.path()), installed);

        const QFileInfo own(state_.StatusFilePath);
        EXPECT_TRUE(own.path().startsWith(row.place + "/orvalente/")) << qPrintable(own.path());
        const QString folder = own.path();
        for (int number = 1; number <= 31; ++number)
            EXPECT_EQ(raw_status_file::characters(folder, number), "NON") << number;
        EXPECT_EQ(raw_status_file::characters(folder, 32),
                  QStringLiteral("Collège et lycée").toLatin1());
        EXPECT_EQ(raw_status_file::characters(folder, 33), "compl\xE8te");
        constexpr auto kForOthers = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup |
                                    QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
        EXPECT_FALSE(own.permissions() & kForOthers);
        EXPECT_FALSE(QFileInfo(folder).permissions() & kForOthers);
        ASSERT_TRUE(QFile::remove(directory_.filePath(raw_status_file::kName)));
    }
    // Another course has a file of its own; another way to the same one has not.
    const QTemporaryDir elsewhere;
    ASSERT_TRUE(QFile::link(directory_.path(), elsewhere.filePath("link")));
    EXPECT_EQ(shell::personalStatusFile(elsewhere.filePath("link/")), state_.StatusFilePath);
    EXPECT_NE(shell::personalStatusFile(elsewhere.path() + '/'), state_.StatusFilePath);
}

TEST_F(StartUpTest, leavesAStatusFileThatIsALinkAlone) {
    const QTemporaryDir session;
    const Environment restored({"XDG_RUNTIME_DIR"});
    qputenv("XDG_RUNTIME_DIR", session.path().toLocal8Bit());
    const QString precious = session.filePath("precious"), made = session.filePath("made");
    for (const QString& target : {precious, made}) {
        test_support::writeFile(precious, "precious");
        ASSERT_TRUE(QFile::link(target, directory_.filePath(raw_status_file::kName)));
        EXPECT_EQ(run(), StartUp::Outcome::GoOn);
        EXPECT_EQ(test_support::readFile(precious), "precious");
        EXPECT_FALSE(QFile::exists(made));
        EXPECT_TRUE(state_.StatusFilePath.startsWith(session.path()));
        ASSERT_TRUE(QFile::remove(directory_.filePath(raw_status_file::kName)));
    }
}

TEST_F(StartUpTest, endsOnAScreenTooNarrowBeforeAnythingIsLookedFor) {
    screen_.width = 699 * 15;
    QFile::remove(directory_.filePath("ZEKX.MDB"));
    EXPECT_EQ(run(), StartUp::Outcome::End);
    EXPECT_EQ(
        messageBoxes_.messages,
        (std::vector{Message{"Exécution impossible", "La configyaration d'écran est inadaptée",
                             Message::Icon::Critical, Message::Buttons::Ok}}));
    EXPECT_EQ(steps_, (QStringList{"width 12000"}));
    EXPECT_FALSE(QFile::exists(directory_.filePath(raw_status_file::kName)));
    EXPECT_EQ(*state_.SiblingProcessIds.slot(1), 77);
}

TEST_F(StartUpTest, endsWithoutADatabaseAndWithoutTouchingTheStatusFile) {
    QFile::remove(directory_.filePath("ZEKX.MDB"));
    EXPECT_EQ(run(), StartUp::Outcome::End);
    EXPECT_EQ(messageBoxes_.messages,
              (std::vector{Message{"Exécution impossible", "Base de données absente",
                                   Message::Icon::Critical, Message::Buttons::Ok}}));
    EXPECT_EQ(steps_, (QStringList{"width 12000"}));
    EXPECT_FALSE(QFile::exists(directory_.filePath(raw_status_file::kName)));
}

TEST_F(StartUpTest, placesTheWindowOnlyOnAWiderScreen) {
    for (const double width : {700., 810., 811.}) {
        steps_.clear();
        screen_.width = width * 15;
        EXPECT_EQ(run(), StartUp::Outcome::GoOn) << width;
        EXPECT_EQ(steps_.filter("place").size(), width > 810 ? 1 : 0) << width;
    }
}

TEST_F(StartUpTest, warnsAsLongAsTheScreenHasBecomeTooNarrow) {
    widthAfterBinding_ = 500; // 600 after the first warning, and 700 is enough
    EXPECT_EQ(run(), StartUp::Outcome::GoOn);
    EXPECT_EQ(steps_.mid(1), (QStringList{"bind /ZEKX.MDB", "pump", "warning 1", "warning 1",
                                          "pump, file there", "pump, file there"}));
    EXPECT_EQ(state_.DisplayWarningMode, 1);
}

TEST_F(StartUpTest, theWarningMayEndTheProgram) {
    widthAfterBinding_ = 699;
    choice_ = Choice::Quit;
    EXPECT_EQ(run(), StartUp::Outcome::End);
    EXPECT_EQ(steps_.back(), "warning 1");
    EXPECT_TRUE(raw_status_file::all(directory_.path()).isEmpty());
}

TEST(InstallDir, endsWithExactlyOneSeparator) {
    EXPECT_EQ(shell::installDir("/cours"), "/cours/");
    EXPECT_EQ(shell::installDir("/cours///"), "/cours/");
    EXPECT_EQ(shell::installDir("/"), "/");
}
