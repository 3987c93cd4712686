#include "coursedata/course_pictures.h"

#include <QFile>
#include <QFileInfo>

namespace coursedata {

class CoursePictures::Described : public page::Picture {
public:
    Described(std::shared_ptr<const page::Picture> picture, QString words)
        : picture_(std::move(picture)), words_(std::move(words)) {}

    QSize size() const override { return picture_->size(); }
    QImage image(QSize pixels) const override { return picture_->image(pixels); }
    page::PictureFormat format() const override { return picture_->format(); }
    const QByteArray& bytes() const override { return picture_->bytes(); }
    QString description() const override { return words_; }

    bool is(const std::shared_ptr<const page::Picture>& picture, const QString& words) const {
        return picture_ == picture && words_ == words;
    }

private:
    std::shared_ptr<const page::Picture> picture_;
    QString words_;
};

std::shared_ptr<const page::Picture> CoursePictures::load(const QString& path) {
    // What was no name stayed what it was; it is not to be looked for in the current directory.
    auto picture = path.trimmed().isEmpty() ? nullptr : files_.load(path);
    readWords();
    const std::string_view told = words_.of(QFileInfo(path).fileName().toStdString());
    if (!picture || told.empty())
        return picture;
    const QString words =
        QString::fromUtf8(told.data(), static_cast<qsizetype>(told.size())).simplified();
    auto known = described_[path].lock();
    if (!known || !known->is(picture, words))
        described_[path] = known = std::make_shared<const Described>(std::move(picture), words);
    std::erase_if(described_, [](const auto& entry) { return entry.second.expired(); });
    return known;
}

void CoursePictures::readWords() {
    const auto path = location_.findInstalled(QLatin1String(kPictureWordsFile));
    const QDateTime changed = path ? QFileInfo(*path).lastModified() : QDateTime();
    if (changed == wordsRead_)
        return;
    wordsRead_ = changed;
    words_ = {};
    QFile file(path.value_or(QString()));
    if (!path || file.size() > static_cast<qint64>(kMaxPictureWordsBytes) ||
        !file.open(QIODevice::ReadOnly))
        return;
    words_ = PictureWords(file.readAll().toStdString());
}

} // namespace coursedata
