#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>
#include <memory>

namespace test_support {

class ScreenReaderEars;

/// What a screen reader knows of programs: their trees of accessible objects, and what they tell.
/// It has message buses of its own, which end with it; programs must end before.
class ScreenReader {
public:
    /// An object of a program; null where there is none.
    struct Object {
        QString program; ///< its address on the bus
        QString path;

        bool isNull() const { return path.isEmpty(); }
        bool operator==(const Object&) const = default;
    };

    /// Bits of AtspiStateType.
    enum class State { Active = 1, Checked = 4, Focusable = 11, Focused = 12, Showing = 25 };

    ScreenReader();
    ~ScreenReader();

    /// Makes `environment` that of programs to be read.
    void tellTo(QProcessEnvironment& environment) const;

    QString role(const Object& object) const;
    QString name(const Object& object) const;
    QString description(const Object& object) const;
    bool has(const Object& object, State state) const;
    /// Of sliders and the like; NaN for others.
    double value(const Object& object) const;
    QList<Object> children(const Object& object) const;

    /// The window whose title begins so.
    Object window(const QString& title) const;
    /// The first in the order of reading that shows and has this role, and this name if one is
    /// given.
    Object find(const Object& within, const QString& role, const QString& name = {}) const;
    /// An object and what shows in it: "role “name”" in a line each, two blanks further right than
    /// what it is in. Nameless panels that only hold others are left out.
    QStringList outline(const Object& top) const;

    /// What has the keyboard, as far as was told.
    Object focused() const;
    /// How often the keyboard went somewhere.
    int focusMoves() const;
    /// All that was announced, oldest first.
    const QStringList& heard() const;

private:
    QVariant ask(const Object& object, const char* interface, const char* method,
                 const QVariantList& arguments = {}) const;
    QVariant property(const Object& object, const char* interface, const char* name) const;
    void visit(const Object& object, int depth,
               const std::function<bool(const Object&, int)>& visitor, bool& done) const;

    QTemporaryDir directory_;
    QProcess session_;
    QString sessionAddress_;
    QDBusConnection bus_;
    std::unique_ptr<ScreenReaderEars> ears_;
};

} // namespace test_support
