#include "HistoryMenu.h"

#include "HelpButton.h"
#include "LocalizedString.h"
#include "StatusMenu.h"
#include "SystemColor.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QWidgetAction>

#include <memory>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

// Logical pixels.
constexpr int sideMargin = 15;
constexpr int smallestGap = 12;
constexpr int titleMargin = 1;
constexpr int rowMargin = 4;

QLabel* plainLabel(const QString& text, QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    return label;
}

/// A disk's name as a heading and, behind it, what is known of its latest backup.
class RowView final : public QWidget {
public:
    explicit RowView(const HistoryMenu::Row& row)
        : heading_(plainLabel(row.heading, this))
    {
        setAccessibleName(row.title());
        QFont bold = font();
        bold.setBold(true);
        heading_->setFont(bold);
        auto* layout = new QHBoxLayout(this);
        layout->setContentsMargins(sideMargin, rowMargin, sideMargin, rowMargin);
        layout->setSpacing(0);
        layout->addWidget(heading_);
        layout->addWidget(plainLabel(": "_L1 + row.value, this));
        layout->addStretch();
        colourHeading();
    }

protected:
    void changeEvent(QEvent* event) override
    {
        QWidget::changeEvent(event);
        if (event->type() == QEvent::PaletteChange)
            colourHeading();
    }

private:
    void colourHeading()
    {
        QPalette blue = palette();
        blue.setColor(QPalette::WindowText, systemBlueColor(palette()));
        heading_->setPalette(blue);
    }

    QLabel* heading_;
};

} // namespace

HistoryMenu::HistoryMenu(QWidget* parent)
    : QMenu(parent)
{
}

void HistoryMenu::setRows(const QList<Row>& rows)
{
    if (rows == rows_)
        return;
    rows_ = rows;
    clear();
    addTitle();
    addSeparator();
    for (const auto& row : rows)
        addRow(row);
    const auto items = actions();
    for (QAction* item : items)
        item->setMenuRole(QAction::NoRole);
}

void HistoryMenu::addTitle()
{
    auto* item = new QWidgetAction(this);
    StatusMenu::setTitle(item, localizedString("latestBackupOfEachDestinationTitle"));
    item->setDefaultWidget(createAllBackupInfoTitleMenuItemView());
    connect(item, &QAction::triggered, this, &HistoryMenu::helpButtonPressed);
    addAction(item);
}

QWidget* HistoryMenu::createAllBackupInfoTitleMenuItemView()
{
    auto view = std::make_unique<QWidget>();
    auto* layout = new QHBoxLayout(view.get());
    layout->setContentsMargins(sideMargin, titleMargin, sideMargin, titleMargin);
    layout->setSpacing(smallestGap);
    auto* help = new HelpButton(view.get());
    help->setAccessibleName(localizedString("helpButtonTitle"));
    layout->addWidget(plainLabel(localizedString("latestBackupOfEachDestinationTitle"), view.get()));
    layout->addStretch();
    layout->addWidget(help, 0, Qt::AlignVCenter);
    view->setFocusProxy(help); // the arrow keys reach the row, and with it the button
    view->setFocusPolicy(Qt::StrongFocus);
    connect(help, &HelpButton::clicked, this, &HistoryMenu::helpButtonPressed);
    return view.release(); // owned by the item that it becomes the widget of
}

void HistoryMenu::addRow(const Row& row)
{
    auto* item = new QWidgetAction(this);
    StatusMenu::setTitle(item, row.title());
    item->setData(row.identifier);
    item->setDefaultWidget(std::make_unique<RowView>(row).release());
    addAction(item);
}

} // namespace quillon
