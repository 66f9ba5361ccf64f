#include "ui/qt/accessible.h"

#include <QVariant>

Q_DECLARE_METATYPE(tarnwell::view::MakeAccessible)

namespace tarnwell::view {

namespace {

constexpr char kMake[] = "makeAccessible";

/// Qt tells nobody but a description whether its widget is about to go. What is made for such a widget would
/// outlive it.
class Probe final : public QAccessibleWidget {
public:
    explicit Probe(QWidget& widget) : QAccessibleWidget(&widget) {}
};

QAccessibleInterface* makeAccessible(const QString&, QObject* object) {
    const auto make = object->property(kMake).value<MakeAccessible>();
    if (!make)
        return nullptr;
    auto& widget = static_cast<QWidget&>(*object);
    return Probe(widget).isValid() ? make(widget) : nullptr;
}

} // namespace

void describeBy(QWidget& widget, MakeAccessible make) {
    QAccessible::installFactory(makeAccessible);
    widget.setProperty(kMake, QVariant::fromValue(make));
}

} // namespace tarnwell::view
