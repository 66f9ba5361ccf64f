#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QSize>
#include <QStringList>

namespace tarnwell::test {

/// A desktop whose panel draws the icons itself and hears of them over the bus, as most of today's do. It
/// also shows the balloons.
class StatusNotifierHost : public QDBusVirtualObject {
public:
    struct Balloon {
        QString title, text;
    };
    struct Entry {
        int id;
        QString label;
    };

    explicit StatusNotifierHost(const QByteArray& busAddress);
    ~StatusNotifierHost() override;

    QStringList items; ///< the services of the icons that have announced themselves
    std::vector<Balloon> balloons;

    // What the panel sees of the latest icon, and what it does to it. All of them wait for the program's
    // answer.
    QString tip() const;
    QList<QSize> pictures() const;
    std::vector<Entry> menu() const; ///< separators left out; empty if there is no menu
    void chooseEntry(int id) const;
    void activate() const { call("Activate", {0, 0}); }
    void openContextMenu() const { call("ContextMenu", {0, 0}); }
    void secondaryActivate() const { call("SecondaryActivate", {0, 0}); }

    QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override;

private:
    QVariant property(const QString& name) const;
    QDBusMessage call(const QString& method, const QVariantList& arguments) const;
    QDBusMessage ask(const QDBusMessage& question) const;
    QString menuPath() const;
    void answerProperty(const QDBusMessage& message);

    QDBusConnection bus_;
};

} // namespace tarnwell::test
