#include "coursedata/jet_recordset.h"
#include "jet/database_file.h"
#include "support/printing.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <fcntl.h>
#include <gtest/gtest.h>

#include <vector>

using coursedata::Access;
using coursedata::openRecordset;
using coursedata::shownText;

namespace {

class JetRecordsetTest : public testing::Test {
protected:
    void SetUp() override {
        auto writer = jet::createDatabase(path_.toStdU16String());
        const std::vector<jet::Column> columns{{.name = u"numero", .type = jet::ColumnType::Long},
                                               {.name = u"enonce", .type = jet::ColumnType::Memo}};
        auto table = writer->addTable(u"Contenu", columns);
        for (int i = 0; i < 3; ++i)
            ASSERT_TRUE(table->append(std::vector<jet::Value>{i, u"court"}));
        ASSERT_TRUE(writer->finish());
    }

    std::unique_ptr<coursedata::Recordset> open(Access access) {
        auto opened = openRecordset(path_, QStringLiteral("contenu"), access);
        EXPECT_TRUE(opened);
        return std::move(*opened);
    }

    QTemporaryDir folder_;
    QString path_ = folder_.filePath(QStringLiteral("qekx é.mdb"));
};

TEST_F(JetRecordsetTest, setsAFieldOfTheCurrentRecord) {
    const auto records = open(Access::Writable);
    ASSERT_TRUE(records->setAbsolutePosition(1));
    const QString grown = QStringLiteral("énoncé à 25 °C, ").repeated(1000);
    for (const QString& text : {grown, QString(), QStringLiteral("bref")}) {
        EXPECT_EQ(records->setField(QStringLiteral("Enonce"), text), std::nullopt);
        EXPECT_EQ(records->absolutePosition(), 1);
        EXPECT_EQ(shownText(records->field(QStringLiteral("enonce"))), text);
        const auto again = open(Access::ReadOnly);
        for (int position = 0; position < 3; ++position) {
            ASSERT_TRUE(again->setAbsolutePosition(position));
            EXPECT_EQ(shownText(again->field(QStringLiteral("enonce"))),
                      position == 1 ? text : QStringLiteral("court"));
        }
    }
}

TEST_F(JetRecordsetTest, keepsItsFileFromProgramsStartedMeanwhile) {
    const auto records = open(Access::Writable);
    int found = 0;
    for (const QString& entry : QDir("/proc/self/fd").entryList(QDir::Files | QDir::System)) {
        if (QFile::symLinkTarget("/proc/self/fd/" + entry) != QFileInfo(path_).canonicalFilePath())
            continue;
        ++found;
        EXPECT_TRUE(fcntl(entry.toInt(), F_GETFD) & FD_CLOEXEC);
    }
    EXPECT_GT(found, 0);
}

TEST_F(JetRecordsetTest, saysWhyAFieldIsNotSet) {
    const QString enonce = QStringLiteral("enonce");
    const auto refused = open(Access::ReadOnly)->setField(enonce, QStringLiteral("x"));
    EXPECT_EQ(refused, QStringLiteral("les enregistrements sont ouverts en lecture seule"));
    const auto records = open(Access::Writable);
    EXPECT_TRUE(records->setField(QStringLiteral("numero"), QStringLiteral("7"))
                    ->contains(QStringLiteral("« numero », la valeur n’est pas du type")));

    // Another program takes the file between opening and setting.
    QFile lock(folder_.filePath(QStringLiteral("qekx é.ldb")));
    ASSERT_TRUE(lock.open(QIODevice::WriteOnly));
    EXPECT_TRUE(records->setField(enonce, QStringLiteral("x"))->contains(QStringLiteral(".ldb")));
    EXPECT_FALSE(openRecordset(path_, QStringLiteral("Contenu"), Access::Writable));
    EXPECT_EQ(shownText(open(Access::ReadOnly)->field(enonce)), QStringLiteral("court"));
}

} // namespace
