#include "AccessibleRole.h"

#include <QAccessibleWidget>
#include <QVariant>
#include <QWidget>

namespace quillon {

namespace {

constexpr auto roleProperty = "accessibleRole";

class WidgetWithRole final : public QAccessibleWidget {
public:
    using QAccessibleWidget::QAccessibleWidget;

    QAccessible::Role role() const override { return object()->property(roleProperty).value<QAccessible::Role>(); }
    int childCount() const override { return role() == QAccessible::StaticText ? 0 : QAccessibleWidget::childCount(); }
};

QAccessibleInterface* makeInterface(const QString& /*className*/, QObject* object)
{
    auto* widget = qobject_cast<QWidget*>(object);
    return widget && widget->property(roleProperty).isValid() ? new WidgetWithRole(widget) : nullptr; // Qt owns it
}

} // namespace

void setAccessibleRole(QWidget& widget, QAccessible::Role role)
{
    QAccessible::installFactory(makeInterface); // once, however often it is called
    widget.setProperty(roleProperty, QVariant::fromValue(role));
}

} // namespace quillon
