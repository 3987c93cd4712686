#include "support/screen_reader.h"

#include "support/files.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>

#include <gtest/gtest.h>

#include <limits>

namespace test_support {

namespace {

constexpr const char* kAccessible = "org.a11y.atspi.Accessible";
constexpr const char* kRegistry = "org.a11y.atspi.Registry";
constexpr int kPatienceMs = 20'000;

const QString kBusName = QStringLiteral("screen reader");
const QString kSessionName = QStringLiteral("session of the screen reader");

/// Deeper trees than this are none.
constexpr int kDeepest = 30;

QVariant answer(const QDBusMessage& reply) {
    return reply.type() == QDBusMessage::ReplyMessage ? reply.arguments().value(0) : QVariant();
}

} // namespace

/// Hears what programs tell; the bus wants a slot.
class ScreenReaderEars : public QObject {
    Q_OBJECT

public:
    explicit ScreenReaderEars(const ScreenReader& reader) : reader_(reader) {}

    ScreenReader::Object focused;
    int focusMoves = 0;
    QStringList heard;

public Q_SLOTS:
    void stateChanged(const QDBusMessage& message) {
        const QString state = message.arguments().value(0).toString();
        const ScreenReader::Object object{message.service(), message.path()};
        if (message.arguments().value(1).toInt() != 1)
            return;
        if (state == u"focused") {
            focused = object;
            ++focusMoves;
        } else if (state == u"showing" && reader_.role(object) == u"notification") {
            heard.append(reader_.name(object));
        }
    }

private:
    const ScreenReader& reader_;
};

ScreenReader::ScreenReader() : bus_(QString()), ears_(std::make_unique<ScreenReaderEars>(*this)) {
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), directory_.path());
    environment.insert(QStringLiteral("HOME"), directory_.path());
    environment.remove(QStringLiteral("AT_SPI_BUS_ADDRESS"));
    environment.remove(QStringLiteral("DISPLAY"));
    session_.setProcessEnvironment(environment);
    session_.setStandardErrorFile(QProcess::nullDevice());
    session_.start(QStringLiteral("dbus-daemon"),
                   {QStringLiteral("--session"), QStringLiteral("--nofork"),
                    QStringLiteral("--print-address"),
                    QStringLiteral("--address=unix:dir=") + directory_.path()});
    while (!session_.canReadLine() && session_.waitForReadyRead(kPatienceMs)) {
    }
    sessionAddress_ = QString::fromLatin1(session_.readLine()).trimmed();
    QDBusConnection session = QDBusConnection::connectToBus(sessionAddress_, kSessionName);
    // Whoever asks for the bus of the screen readers has it started.
    const QString address =
        answer(session.call(QDBusMessage::createMethodCall(
                   QStringLiteral("org.a11y.Bus"), QStringLiteral("/org/a11y/bus"),
                   QStringLiteral("org.a11y.Bus"), QStringLiteral("GetAddress"))))
            .toString();
    if (address.isEmpty()) {
        ADD_FAILURE() << "no bus for screen readers: is at-spi2-core missing?";
        return;
    }
    bus_ = QDBusConnection::connectToBus(address, kBusName);
    bus_.connect({}, {}, QStringLiteral("org.a11y.atspi.Event.Object"),
                 QStringLiteral("StateChanged"), ears_.get(), SLOT(stateChanged(QDBusMessage)));
    // Programs tell only what somebody wants to hear.
    const Object registry{QString::fromLatin1(kRegistry),
                          QStringLiteral("/org/a11y/atspi/registry")};
    ask(registry, kRegistry, "RegisterEvent", {QStringLiteral("object:state-changed")});
}

ScreenReader::~ScreenReader() {
    QDBusConnection::disconnectFromBus(kBusName);
    QDBusConnection::disconnectFromBus(kSessionName);
    session_.terminate();
    session_.waitForFinished();
}

void ScreenReader::tellTo(QProcessEnvironment& environment) const {
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), sessionAddress_);
    environment.insert(QStringLiteral("QT_LINUX_ACCESSIBILITY_ALWAYS_ON"), QStringLiteral("1"));
    environment.remove(QStringLiteral("AT_SPI_BUS_ADDRESS"));
}

QVariant ScreenReader::ask(const Object& object, const char* interface, const char* method,
                           const QVariantList& arguments) const {
    if (object.isNull())
        return {};
    QDBusMessage call = QDBusMessage::createMethodCall(
        object.program, object.path, QString::fromLatin1(interface), QString::fromLatin1(method));
    call.setArguments(arguments);
    return answer(bus_.call(call, QDBus::Block, kPatienceMs));
}

QVariant ScreenReader::property(const Object& object, const char* interface,
                                const char* name) const {
    return ask(object, "org.freedesktop.DBus.Properties", "Get",
               {QString::fromLatin1(interface), QString::fromLatin1(name)})
        .value<QDBusVariant>()
        .variant();
}

QString ScreenReader::role(const Object& object) const {
    return ask(object, kAccessible, "GetRoleName").toString();
}

QString ScreenReader::name(const Object& object) const {
    return property(object, kAccessible, "Name").toString();
}

QString ScreenReader::description(const Object& object) const {
    return property(object, kAccessible, "Description").toString();
}

bool ScreenReader::has(const Object& object, State state) const {
    const auto words = qdbus_cast<QList<uint>>(ask(object, kAccessible, "GetState"));
    const auto bit = static_cast<int>(state);
    return (words.value(bit / 32) >> (bit % 32) & 1U) != 0;
}

double ScreenReader::value(const Object& object) const {
    const QVariant value = property(object, "org.a11y.atspi.Value", "CurrentValue");
    return value.isValid() ? value.toDouble() : std::numeric_limits<double>::quiet_NaN();
}

QList<ScreenReader::Object> ScreenReader::children(const Object& object) const {
    QList<Object> all;
    const QVariant reply = ask(object, kAccessible, "GetChildren");
    if (!reply.canConvert<QDBusArgument>())
        return all;
    const auto list = reply.value<QDBusArgument>();
    for (list.beginArray(); !list.atEnd();) {
        QString program;
        QDBusObjectPath path;
        list.beginStructure();
        list >> program >> path;
        list.endStructure();
        all.append({program, path.path()});
    }
    list.endArray(); // what reads the list is let go of
    return all;
}

ScreenReader::Object ScreenReader::window(const QString& title) const {
    const Object root{QString::fromLatin1(kRegistry),
                      QStringLiteral("/org/a11y/atspi/accessible/root")};
    for (const Object& program : children(root))
        for (const Object& window : children(program))
            if (name(window).startsWith(title) && has(window, State::Showing))
                return window;
    return {};
}

void ScreenReader::visit(const Object& object, int depth,
                         const std::function<bool(const Object&, int)>& visitor, bool& done) const {
    if (depth > kDeepest || done || !has(object, State::Showing))
        return;
    const bool isPlain = role(object) == u"filler" && name(object).isEmpty();
    done = !isPlain && visitor(object, depth);
    for (const Object& child : done ? QList<Object>() : children(object))
        visit(child, isPlain ? depth : depth + 1, visitor, done);
}

ScreenReader::Object ScreenReader::find(const Object& within, const QString& sought,
                                        const QString& named) const {
    Object found;
    bool done = false;
    visit(
        within, 0,
        [&](const Object& object, int) {
            const bool isIt = role(object) == sought && (named.isEmpty() || name(object) == named);
            if (isIt)
                found = object;
            return isIt;
        },
        done);
    return found;
}

QStringList ScreenReader::outline(const Object& top) const {
    QStringList lines;
    bool done = false;
    visit(
        top, 0,
        [&](const Object& object, int depth) {
            lines.append(QString(2 * depth, u' ') + role(object) + QStringLiteral(" “") +
                         name(object) + u'”');
            return false;
        },
        done);
    return lines;
}

ScreenReader::Object ScreenReader::focused() const {
    return ears_->focused;
}

int ScreenReader::focusMoves() const {
    return ears_->focusMoves;
}

const QStringList& ScreenReader::heard() const {
    return ears_->heard;
}

} // namespace test_support

#include "screen_reader.moc"
