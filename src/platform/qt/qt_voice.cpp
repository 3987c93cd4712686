#include "platform/qt/qt_voice.h"

#include <QLocale>
#include <QTextToSpeech>
#include <QThread>

#include <optional>
#include <utility>

namespace platform {

namespace {

/// A voice of France, any other of French, or none: another language's makes nothing of the words.
std::optional<QLocale> frenchOf(const QList<QLocale>& locales) {
    std::optional<QLocale> french;
    for (const QLocale& locale : locales)
        if (locale.language() == QLocale::French &&
            (!french || locale.territory() == QLocale::France))
            french = locale;
    return french;
}

/// The library's object, in a thread of its own: to find the voices, which may mean to start the
/// system's speech service first, takes it seconds.
class Engine : public QObject {
public:
    /// `said` and `cannotSpeak` are called in that thread.
    explicit Engine(VoiceEvents events) : events_(std::move(events)) {}

    void say(const QString& words) {
        if (!speech_)
            open();
        begun_ = false;
        if (canSpeak_)
            speech_->say(words);
        else
            events_.cannotSpeak();
    }

    void stop() {
        begun_ = false;
        if (canSpeak_)
            speech_->stop();
    }

private:
    void open() {
        speech_ = new QTextToSpeech(this);
        const auto french = frenchOf(speech_->availableLocales());
        canSpeak_ = french && speech_->state() != QTextToSpeech::Error;
        if (!canSpeak_)
            return;
        speech_->setLocale(*french);
        connect(speech_, &QTextToSpeech::stateChanged, this,
                [this](QTextToSpeech::State state) { changed(state); });
    }

    /// The library tells when it is ready, and not of which text: what was stopped makes it ready
    /// too, before the next text begins.
    void changed(QTextToSpeech::State state) {
        if (state == QTextToSpeech::Speaking) {
            begun_ = true;
        } else if (state == QTextToSpeech::Error && std::exchange(canSpeak_, false)) {
            events_.cannotSpeak();
        } else if (state == QTextToSpeech::Ready && speech_->state() == state &&
                   std::exchange(begun_, false)) {
            events_.said();
        }
    }

    VoiceEvents events_;
    QTextToSpeech* speech_ = nullptr; ///< made when it is first asked for
    bool canSpeak_ = false;
    bool begun_ = false; ///< the text given last is being said
};

class QtVoice : public QObject, public Voice {
public:
    explicit QtVoice(const VoiceEvents& events) : events_(events) {
        engine_ = new Engine(
            {[this] { tell(&VoiceEvents::said); }, [this] { tell(&VoiceEvents::cannotSpeak); }});
        engine_->moveToThread(&thread_);
        connect(&thread_, &QThread::finished, engine_, &QObject::deleteLater);
        thread_.start();
    }

    ~QtVoice() override {
        thread_.quit();
        thread_.wait();
    }

    void say(const QString& words) override {
        ++texts_;
        QMetaObject::invokeMethod(engine_, [this, words, text = texts_] {
            current_ = text;
            engine_->say(words);
        });
    }

    void stop() override {
        ++texts_;
        QMetaObject::invokeMethod(engine_, [engine = engine_] { engine->stop(); });
    }

private:
    /// In the engine's thread. What has been stopped meanwhile is not told of.
    void tell(std::function<void()> VoiceEvents::*event) {
        QMetaObject::invokeMethod(this, [this, event, text = current_] {
            if (text == texts_)
                (events_.*event)();
        });
    }

    VoiceEvents events_;
    int texts_ = 0;   ///< counts what was asked for
    int current_ = 0; ///< the one that the engine is at; in its thread
    Engine* engine_;
    QThread thread_;
};

} // namespace

std::unique_ptr<Voice> makeQtVoice(const VoiceEvents& events) {
    return std::make_unique<QtVoice>(events);
}

} // namespace platform
