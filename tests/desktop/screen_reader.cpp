#include "desktop/screen_reader.h"

#include "platform/helpers.h"

#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusVariant>

#include <algorithm>
#include <stdexcept>

namespace tarnwell::test {

namespace {

const char kConnection[] = "screen reader";
const char kDesktop[] = "org.a11y.Bus";
const char kRegistry[] = "org.a11y.atspi.Registry";
const char kRegistryProgram[] = "/usr/libexec/at-spi2-registryd";
const char kRoot[] = "/org/a11y/atspi/accessible/root";
const QString kAccessible = "org.a11y.atspi.Accessible";

// Places in the set of states.
constexpr int kEnabled = 8, kShowing = 25;

QProcessEnvironment onTheBus(const QByteArray& busAddress, const QString& display) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("AT_SPI_BUS_ADDRESS", busAddress);
    environment.insert("DISPLAY", display);
    return environment;
}

} // namespace

ScreenReader::ScreenReader(const QByteArray& busAddress, const QString& display)
    : busAddress_(busAddress), bus_(QDBusConnection::connectToBus(busAddress, kConnection)),
      registry_(kRegistryProgram, {}, onTheBus(busAddress, display), BackgroundProgram::Complaints::Dropped) {
    if (!pumpUntil([this] { return bus_.interface()->isServiceRegistered(kRegistry).value(); }))
        throw std::runtime_error("no registry of accessible programs");
    if (!bus_.registerVirtualObject("/org/a11y/bus", this) || !bus_.registerService(kDesktop))
        throw std::runtime_error("no place on the bus for a screen reader");
    const QString events = "org.a11y.atspi.Event.Object";
    bus_.connect({}, {}, events, "StateChanged", this, SLOT(hearState(QDBusMessage)));
    bus_.connect({}, {}, events, "PropertyChange", this, SLOT(hearProperty(QDBusMessage)));
    // Programs tell only what somebody has asked to hear.
    for (const char* event : {"object:state-changed:showing", "object:property-change:accessible-value"})
        call({kRegistry, "/org/a11y/atspi/registry"}, kRegistry, "RegisterEvent", {event});
}

ScreenReader::~ScreenReader() {
    bus_.unregisterService(kDesktop);
    QDBusConnection::disconnectFromBus(kConnection);
}

/// What programs ask the desktop: where accessible programs meet, and whether anybody listens.
bool ScreenReader::handleMessage(const QDBusMessage& message, const QDBusConnection& bus) {
    QVariant answer = QString(busAddress_);
    if (message.member() == "Get")
        answer = QVariant::fromValue(QDBusVariant(true));
    else if (message.member() != "GetAddress")
        return false;
    return bus.send(message.createReply(answer));
}

QDBusMessage ScreenReader::call(const Thing& thing, const QString& interface, const QString& method,
                                const QVariantList& arguments) const {
    QDBusMessage message = QDBusMessage::createMethodCall(thing.service, thing.path, interface, method);
    message.setArguments(arguments);
    return bus_.call(message, QDBus::Block, kPatienceMs);
}

QVariant ScreenReader::property(const Thing& thing, const QString& interface, const QString& name) const {
    const QDBusMessage answer = call(thing, "org.freedesktop.DBus.Properties", "Get", {interface, name});
    return answer.arguments().value(0).value<QDBusVariant>().variant();
}

QString ScreenReader::role(const Thing& thing) const {
    return call(thing, kAccessible, "GetRoleName").arguments().value(0).toString();
}

QString ScreenReader::name(const Thing& thing) const {
    return property(thing, kAccessible, "Name").toString();
}

quint64 ScreenReader::states(const Thing& thing) const {
    const auto halves = qdbus_cast<QList<quint32>>(call(thing, kAccessible, "GetState").arguments().value(0));
    return halves.size() == 2 ? halves[0] | quint64(halves[1]) << 32 : 0;
}

std::vector<ScreenReader::Thing> ScreenReader::children(const Thing& thing) const {
    const QVariant answer = call(thing, kAccessible, "GetChildren").arguments().value(0);
    if (!answer.canConvert<QDBusArgument>())
        return {};
    std::vector<Thing> all;
    const auto list = answer.value<QDBusArgument>();
    list.beginArray();
    while (!list.atEnd()) {
        Thing child;
        QDBusObjectPath path;
        list.beginStructure();
        list >> child.service >> path;
        list.endStructure();
        child.path = path.path();
        all.push_back(child);
    }
    list.endArray();
    return all;
}

bool ScreenReader::visit(const Thing& thing, const Visit& visitor) const {
    if (!(states(thing) >> kShowing & 1))
        return false;
    return visitor(thing) ||
           std::ranges::any_of(children(thing), [&](const Thing& child) { return visit(child, visitor); });
}

bool ScreenReader::visitAll(const Visit& visitor) const {
    for (const Thing& program : children({kRegistry, kRoot})) {
        for (const Thing& window : children(program)) {
            if (visit(window, visitor))
                return true;
        }
    }
    return false;
}

std::optional<ScreenReader::Thing> ScreenReader::look(const QString& wantedRole,
                                                      const QString& wantedName) const {
    std::optional<Thing> found;
    visitAll([&](const Thing& thing) {
        if (role(thing) == wantedRole && name(thing) == wantedName)
            found = thing;
        return found.has_value();
    });
    return found;
}

ScreenReader::Thing ScreenReader::find(const QString& wantedRole, const QString& wantedName) const {
    std::optional<Thing> found;
    if (!pumpUntil([&] { return (found = look(wantedRole, wantedName)).has_value(); }))
        throw std::runtime_error("no " + (wantedRole + ' ' + wantedName).toStdString() + everything());
    return *found;
}

std::string ScreenReader::everything() const {
    QStringList all;
    visitAll([&](const Thing& thing) {
        all += role(thing) + ' ' + name(thing);
        return false;
    });
    return (" among: " + all.join(" | ") + " after: " + heard.join(" | ")).toStdString();
}

QString ScreenReader::textOf(const QString& role, const QString& name) const {
    return call(find(role, name), "org.a11y.atspi.Text", "GetText", {0, -1}).arguments().value(0).toString();
}

double ScreenReader::valueOf(const QString& role, const QString& name) const {
    return property(find(role, name), "org.a11y.atspi.Value", "CurrentValue").toDouble();
}

bool ScreenReader::enabled(const QString& role, const QString& name) const {
    return states(find(role, name)) >> kEnabled & 1;
}

bool ScreenReader::shown(const QString& role, const QString& name) const {
    return look(role, name).has_value();
}

QStringList ScreenReader::namesOf(const QString& wantedRole) const {
    QStringList names;
    visitAll([&](const Thing& thing) {
        if (role(thing) == wantedRole)
            names += name(thing);
        return false;
    });
    return names;
}

void ScreenReader::act(const QString& role, const QString& name) const {
    const Thing thing = find(role, name);
    QDBusMessage message =
        QDBusMessage::createMethodCall(thing.service, thing.path, "org.a11y.atspi.Action", "DoAction");
    message.setArguments({0});
    bus_.asyncCall(message);
}

void ScreenReader::write(const QString& role, const QString& name, const QString& text) const {
    call(find(role, name), "org.a11y.atspi.EditableText", "SetTextContents", {text});
}

void ScreenReader::choose(const QString& dropDown, const QString& entry) const {
    const Thing list = children(find("combo box", dropDown)).at(0);
    const std::vector<Thing> entries = children(list);
    const auto wanted =
        std::ranges::find_if(entries, [&](const Thing& thing) { return name(thing).startsWith(entry); });
    if (wanted == entries.end())
        throw std::runtime_error("no entry " + entry.toStdString());
    call(list, "org.a11y.atspi.Table", "AddRowSelection", {int(wanted - entries.begin())});
}

void ScreenReader::hearState(const QDBusMessage& event) {
    const Thing thing{event.service(), event.path()};
    if (event.arguments().value(0) == "showing" && event.arguments().value(1) == 1 &&
        role(thing) == "notification")
        heard += name(thing);
}

void ScreenReader::hearProperty(const QDBusMessage& event) {
    if (event.arguments().value(0) == "accessible-value")
        barsPassed.push_back(
            property({event.service(), event.path()}, "org.a11y.atspi.Value", "CurrentValue").toDouble());
}

} // namespace tarnwell::test
