#include "ui/widgets/Accessible.h"

#include "ui/widgets/DropDown.h"
#include "ui/widgets/GroupPanel.h"
#include "ui/widgets/NumberEdit.h"

#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QLabel>
#include <QMouseEvent>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {
enum class Press { No, Yes };

struct RoleRow
{
    QLatin1StringView className;
    QAccessible::Role role;
    Press press;
};

constexpr std::array<RoleRow, 10> roleRows{{
    {"Lamp"_L1, QAccessible::Indicator, Press::Yes},
    {"EndMark"_L1, QAccessible::PushButton, Press::Yes},
    {"Chip"_L1, QAccessible::PushButton, Press::Yes},
    {"TimerLabel"_L1, QAccessible::PushButton, Press::Yes},
    {"GroupHeading"_L1, QAccessible::PushButton, Press::Yes},
    {"GroupPanel"_L1, QAccessible::Grouping, Press::No},
    {"NumberEdit"_L1, QAccessible::SpinBox, Press::No},
    {"DropDown"_L1, QAccessible::ComboBox, Press::Yes},
    {"StatusBarLine"_L1, QAccessible::StatusBar, Press::No},
    {"FigureLabel"_L1, QAccessible::StaticText, Press::No},
}};

class Announced : public QAccessibleWidget
{
  public:
    Announced(QWidget &widget, const RoleRow &row) : QAccessibleWidget(&widget, row.role), mPress(row.press) {}

    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Value)
            return value();
        if (kind == QAccessible::Name && role() == QAccessible::Grouping) {
            const auto *const heading = widget()->findChild<GroupHeading *>();
            return heading != nullptr ? heading->text() : QString();
        }
        if (kind == QAccessible::Name)
            return widget()->accessibleName();
        // A tool tip may carry markup; what describes a widget is told in plain words.
        return kind == QAccessible::Description ? widget()->accessibleDescription() : QAccessibleWidget::text(kind);
    }

    [[nodiscard]] QStringList actionNames() const override
    {
        if (mPress == Press::No || !widget()->isEnabled())
            return QAccessibleWidget::actionNames();
        return QStringList{pressAction()} + QAccessibleWidget::actionNames();
    }

    void doAction(const QString &action) override
    {
        if (action == pressAction() && mPress == Press::Yes && widget()->isEnabled())
            press();
        else
            QAccessibleWidget::doAction(action);
    }

  private:
    [[nodiscard]] QString value() const
    {
        if (const auto *const combo = qobject_cast<const DropDown *>(widget()))
            return combo->currentText();
        if (const auto *const number = qobject_cast<const NumberEdit *>(widget()))
            return number->text();
        const auto *const label = qobject_cast<const QLabel *>(widget());
        return label != nullptr ? label->text() : QString();
    }

    void press()
    {
        if (auto *const combo = qobject_cast<DropDown *>(widget()))
            return combo->showPopup();
        const QPointF centre = widget()->rect().center();
        const QPointF global = widget()->mapToGlobal(centre);
        QMouseEvent down(QEvent::MouseButtonPress, centre, global, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QMouseEvent up(QEvent::MouseButtonRelease, centre, global, Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
        const QPointer<QWidget> alive(widget());
        QCoreApplication::sendEvent(widget(), &down);
        if (alive)
            QCoreApplication::sendEvent(alive, &up);
    }

    Press mPress;
};

QAccessibleInterface *announced(const QString &className, QObject *object)
{
    auto *const widget = qobject_cast<QWidget *>(object);
    const auto *const row = std::find_if(roleRows.begin(), roleRows.end(),
                                         [&className](const RoleRow &each) { return each.className == className; });
    return widget == nullptr || row == roleRows.end() ? nullptr : new Announced(*widget, *row);
}
} // namespace

void Accessible::install()
{
    QAccessible::installFactory(announced);
}
