#pragma once

#include "desktop/background_program.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>

namespace tarnwell::test {

/// Someone who sees no window and has neither mouse nor keys: all that is known of the program, and done to
/// it, goes over the accessibility bus.
class ScreenReader : public QDBusVirtualObject {
    Q_OBJECT

public:
    /// Programs that start later on this bus learn that somebody listens, and find the registry of all that
    /// is accessible there. Readers that watch the keys as well do so on `display`.
    ScreenReader(const QByteArray& busAddress, const QString& display);
    ~ScreenReader() override;
    ScreenReader(const ScreenReader&) = delete;
    ScreenReader& operator=(const ScreenReader&) = delete;

    // Things are called by their role and their name; only what is showing is found. All wait until there is
    // such a thing, and throw std::runtime_error if none comes.
    QString textOf(const QString& role, const QString& name) const;
    double valueOf(const QString& role, const QString& name) const;
    bool enabled(const QString& role, const QString& name) const;
    /// Does the first of the thing's actions. What that starts may take long.
    void act(const QString& role, const QString& name) const;
    void write(const QString& role, const QString& name, const QString& text) const;
    /// Selects the entry of a drop-down list that begins so, without opening it.
    void choose(const QString& dropDown, const QString& entry) const;

    bool shown(const QString& role, const QString& name) const;
    /// Of all that is showing.
    QStringList namesOf(const QString& role) const;

    /// For the message of a test that fails: whatever is showing, and what was heard.
    std::string everything() const;

    QStringList heard;              ///< what was announced
    std::vector<double> barsPassed; ///< the values that bars told of when they changed

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override;

private Q_SLOTS:
    void hearState(const QDBusMessage& event);
    void hearProperty(const QDBusMessage& event);

private:
    struct Thing {
        QString service, path;
    };
    using Visit = std::function<bool(const Thing&)>;

    QDBusMessage call(const Thing& thing, const QString& interface, const QString& method,
                      const QVariantList& arguments = {}) const;
    QVariant property(const Thing& thing, const QString& interface, const QString& name) const;
    QString role(const Thing& thing) const;
    QString name(const Thing& thing) const;
    quint64 states(const Thing& thing) const;
    std::vector<Thing> children(const Thing& thing) const;
    /// Visits what is showing until a visit returns true. What is not showing shows nothing inside either,
    /// but for lists that drop down.
    bool visit(const Thing& thing, const Visit& visit) const;
    bool visitAll(const Visit& visit) const;
    std::optional<Thing> look(const QString& role, const QString& name) const;
    Thing find(const QString& role, const QString& name) const;

    const QByteArray busAddress_;
    QDBusConnection bus_;
    BackgroundProgram registry_;
};

} // namespace tarnwell::test
