#pragma once

#include <QByteArray>
#include <QImage>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cstring>

namespace test_support {

/// An AVI file each of whose frames shows its number, from 0, as eight bars from left to right,
/// white for the bits that are set, the lowest first.
struct Clip {
    const char* name;
    const char* codec;
    const char* rate; ///< frames a second, as ffmpeg takes it
    int frames;
    double soundSeconds = 0;       ///< 0: without
    const char* codecOptions = ""; ///< more for ffmpeg

    static constexpr int kBars = 8;
    static constexpr QSize kSize{128, 96};

    QString make(const QTemporaryDir& directory) const {
        QStringList call{"-loglevel", "error",         "-y",   "-f",
                         "rawvideo",  "-pixel_format", "gray", "-video_size",
                         "128x96",    "-framerate",    rate,   "-i",
                         "-"};
        if (soundSeconds > 0)
            call << "-f"
                 << "lavfi"
                 << "-t" << QString::number(soundSeconds) << "-i"
                 << "sine=frequency=440:sample_rate=22050"
                 << "-c:a"
                 << "pcm_s16le";
        const QString path = directory.filePath(QString::fromLatin1(name) + QStringLiteral(".avi"));
        call << "-c:v" << codec;
        call << QString::fromLatin1(codecOptions).split(u' ', Qt::SkipEmptyParts) << path;
        QProcess ffmpeg;
        ffmpeg.start(QStringLiteral("ffmpeg"), call);
        for (int number = 0; number < frames; ++number)
            ffmpeg.write(frame(number));
        ffmpeg.closeWriteChannel();
        EXPECT_TRUE(ffmpeg.waitForFinished(60'000)) << name;
        EXPECT_EQ(ffmpeg.exitCode(), 0) << ffmpeg.readAllStandardError().constData();
        return path;
    }

    /// The number that a picture shows; -1 for no picture.
    static int numberIn(const QImage& picture) {
        int number = picture.isNull() ? -1 : 0;
        for (int bar = 0; number >= 0 && bar < kBars; ++bar) {
            const int x = (2 * bar + 1) * picture.width() / (2 * kBars);
            number |= (qGray(picture.pixel(x, picture.height() / 2)) > 127) << bar;
        }
        return number;
    }

private:
    static QByteArray frame(int number) {
        QByteArray line;
        for (int bar = 0; bar < kBars; ++bar)
            line.append(kSize.width() / kBars, number >> bar & 1 ? '\xff' : '\0');
        return line.repeated(kSize.height());
    }
};

} // namespace test_support
