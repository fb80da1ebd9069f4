#include "AlertBox.h"

#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

QMessageBox::Icon iconOf(AlertStyle style)
{
    switch (style) {
    case AlertStyle::Warning:
        return QMessageBox::Warning;
    case AlertStyle::Informational:
        return QMessageBox::Information;
    case AlertStyle::Critical:
        return QMessageBox::Critical;
    }
    Q_UNREACHABLE();
}

void addButtons(QMessageBox& box, const QStringList& titles)
{
    for (qsizetype index = 0; index < titles.size(); ++index) {
        const bool first = index == 0;
        const bool last = index == titles.size() - 1;
        QString label = titles[index];
        QPushButton* button = box.addButton(label.replace('&'_L1, "&&"_L1), first  ? QMessageBox::AcceptRole
                                                                            : last ? QMessageBox::RejectRole
                                                                                   : QMessageBox::ActionRole);
        button->setProperty("response", alertFirstButtonReturn + static_cast<int>(index));
        if (first)
            box.setDefaultButton(button);
        if (last)
            box.setEscapeButton(button);
    }
}

} // namespace

void AlertBox::present(const AlertRequest& request, std::function<void(int response)> answer)
{
    auto* box = new QMessageBox(iconOf(request.style), {}, request.messageText); // NOLINT: deletes itself when closed
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setInformativeText(request.informativeText);
    const auto labels = box->findChildren<QLabel*>();
    for (QLabel* label : labels)
        label->setTextFormat(Qt::PlainText);
    addButtons(*box, request.buttons);
    connect(this, &QObject::destroyed, box, [box] { delete box; });
    connect(box, &QMessageBox::finished, this, [box, answer = std::move(answer)] {
        // Closing the window clicks nothing.
        const QAbstractButton* chosen = box->clickedButton() ? box->clickedButton() : box->escapeButton();
        if (answer)
            answer(chosen->property("response").toInt());
    });
    box->setWindowModality(Qt::ApplicationModal);
    box->show();
}

} // namespace quillon
