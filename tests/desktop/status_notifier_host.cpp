#include "desktop/status_notifier_host.h"

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QDateTime>

#include <stdexcept>

namespace tarnwell::test {

namespace {

const char kHostConnection[] = "status notifier host";
const char kWatcher[] = "org.kde.StatusNotifierWatcher";
const char kItem[] = "org.kde.StatusNotifierItem";
const char kItemPath[] = "/StatusNotifierItem";
const char kNotifications[] = "org.freedesktop.Notifications";
const char kMenu[] = "com.canonical.dbusmenu";
const char kProperties[] = "org.freedesktop.DBus.Properties";
constexpr int kAnswerMs = 5000;

const char kWatcherDescription[] = R"(<interface name="org.kde.StatusNotifierWatcher">
  <method name="RegisterStatusNotifierItem"><arg type="s" direction="in"/></method>
  <property name="RegisteredStatusNotifierItems" type="as" access="read"/>
  <property name="IsStatusNotifierHostRegistered" type="b" access="read"/>
  <property name="ProtocolVersion" type="i" access="read"/>
</interface>)";

/// Appends the entries below an entry of a menu: a number, its properties, the entries below it.
void collect(const QDBusArgument& entry, std::vector<StatusNotifierHost::Entry>& entries) {
    int id = 0;
    QVariantMap properties;
    QVariantList children;
    entry.beginStructure();
    entry >> id >> properties >> children;
    entry.endStructure();
    if (properties.contains("label") && properties.value("visible", true).toBool())
        entries.push_back({id, properties.value("label").toString()});
    for (const QVariant& child : children)
        collect(child.value<QDBusArgument>(), entries);
}

} // namespace

StatusNotifierHost::StatusNotifierHost(const QByteArray& busAddress)
    : bus_(QDBusConnection::connectToBus(busAddress, kHostConnection)) {
    const bool ready = bus_.registerVirtualObject("/StatusNotifierWatcher", this) &&
                       bus_.registerVirtualObject("/org/freedesktop/Notifications", this) &&
                       bus_.registerService(kWatcher) && bus_.registerService(kNotifications);
    if (!ready)
        throw std::runtime_error("no place on the bus for a status notifier host");
}

StatusNotifierHost::~StatusNotifierHost() {
    QDBusConnection::disconnectFromBus(kHostConnection);
}

QString StatusNotifierHost::introspect(const QString& path) const {
    // Without a description of its properties a program takes the host for none.
    return path == "/StatusNotifierWatcher" ? kWatcherDescription : QString();
}

bool StatusNotifierHost::handleMessage(const QDBusMessage& message, const QDBusConnection&) {
    if (message.interface() == kProperties && message.member() == "Get") {
        answerProperty(message);
    } else if (message.member() == "RegisterStatusNotifierItem") {
        items += message.arguments().value(0).toString();
        bus_.send(message.createReply());
    } else if (message.member() == "GetCapabilities") {
        bus_.send(message.createReply(QStringList("body")));
    } else if (message.member() == "Notify") {
        balloons.push_back(
            {message.arguments().value(3).toString(), message.arguments().value(4).toString()});
        bus_.send(message.createReply(quint32(balloons.size())));
    } else {
        return false;
    }
    return true;
}

void StatusNotifierHost::answerProperty(const QDBusMessage& message) {
    const QString name = message.arguments().value(1).toString();
    QVariant value = name == "IsStatusNotifierHostRegistered" ? QVariant(true)
                     : name == "ProtocolVersion"              ? QVariant(0)
                                                              : QVariant(items);
    bus_.send(message.createReply(QVariant::fromValue(QDBusVariant(value))));
}

QString StatusNotifierHost::tip() const {
    // The name of a picture, pictures, a title, a text.
    const auto tip = property("ToolTip").value<QDBusArgument>();
    QString iconName, title, text;
    tip.beginStructure();
    tip >> iconName;
    tip.beginArray();
    while (!tip.atEnd()) {
        int width = 0, height = 0;
        QByteArray bytes;
        tip.beginStructure();
        tip >> width >> height >> bytes;
        tip.endStructure();
    }
    tip.endArray();
    tip >> title >> text;
    tip.endStructure();
    return title + text;
}

QList<QSize> StatusNotifierHost::pictures() const {
    const auto all = property("IconPixmap").value<QDBusArgument>();
    QList<QSize> sizes;
    all.beginArray();
    while (!all.atEnd()) {
        int width = 0, height = 0;
        QByteArray bytes;
        all.beginStructure();
        all >> width >> height >> bytes;
        all.endStructure();
        if (bytes.size() == qsizetype{4} * width * height)
            sizes += QSize(width, height);
    }
    all.endArray();
    return sizes;
}

QString StatusNotifierHost::menuPath() const {
    return property("Menu").value<QDBusObjectPath>().path();
}

std::vector<StatusNotifierHost::Entry> StatusNotifierHost::menu() const {
    if (menuPath().isEmpty() || menuPath() == "/NO_DBUSMENU")
        return {};
    QDBusMessage question = QDBusMessage::createMethodCall(items.last(), menuPath(), kMenu, "GetLayout");
    question.setArguments({0, -1, QStringList()});
    std::vector<Entry> entries;
    collect(ask(question).arguments().value(1).value<QDBusArgument>(), entries);
    return entries;
}

void StatusNotifierHost::chooseEntry(int id) const {
    QDBusMessage click = QDBusMessage::createMethodCall(items.last(), menuPath(), kMenu, "Event");
    const auto when = static_cast<quint32>(QDateTime::currentSecsSinceEpoch());
    click.setArguments({id, "clicked", QVariant::fromValue(QDBusVariant(QString())), when});
    ask(click);
}

QVariant StatusNotifierHost::property(const QString& name) const {
    QDBusMessage question = QDBusMessage::createMethodCall(items.last(), kItemPath, kProperties, "Get");
    question.setArguments({kItem, name});
    return ask(question).arguments().value(0).value<QDBusVariant>().variant();
}

QDBusMessage StatusNotifierHost::call(const QString& method, const QVariantList& arguments) const {
    QDBusMessage message = QDBusMessage::createMethodCall(items.last(), kItemPath, kItem, method);
    message.setArguments(arguments);
    return ask(message);
}

QDBusMessage StatusNotifierHost::ask(const QDBusMessage& question) const {
    // Events are served meanwhile: the program may have a question of its own.
    const QDBusMessage answer = bus_.call(question, QDBus::BlockWithGui, kAnswerMs);
    if (answer.type() != QDBusMessage::ReplyMessage)
        throw std::runtime_error(question.member().toStdString() + ": " +
                                 answer.errorMessage().toStdString());
    return answer;
}

} // namespace tarnwell::test
