// A program with nothing but a status item. It obeys the lines on its standard input and answers each with one line of
// JSON about what is on the screen; it ends with its input.

#include "ModalAlertPresenter.h"
#include "StatusItem.h"

#include <QApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMenu>
#include <QSocketNotifier>
#include <QTest>

#include <cstdio>
#include <iostream>
#include <string>

using namespace Qt::StringLiterals;

namespace {

quillon::StatusItemPlacement placementNamed(const QString& name)
{
    if (name == "tray"_L1)
        return quillon::StatusItemPlacement::Tray;
    return name == "bar"_L1 ? quillon::StatusItemPlacement::Bar : quillon::StatusItemPlacement::Automatic;
}

QJsonObject toJson(const QRect& rect)
{
    return {{u"x"_s, rect.x()}, {u"y"_s, rect.y()}, {u"w"_s, rect.width()}, {u"h"_s, rect.height()}};
}

QJsonObject screenState(const quillon::StatusItem& item, const QMenu& menu, const QString& chosen)
{
    QJsonObject state{{u"menuOpen"_s, menu.isVisible()}, {u"chosen"_s, chosen}};
    if (const QWidget* alert = QApplication::activeModalWidget())
        state[u"alertMinimized"_s] = alert->isMinimized();
    if (const QRect icon = item.anchor().screenRect; !icon.isNull())
        state[u"icon"_s] = toJson(icon);
    const auto widgets = QApplication::topLevelWidgets();
    for (const QWidget* widget : widgets) {
        if (widget->objectName() == "MenuBarWindow"_L1 && widget->isVisible() && !widget->isMinimized())
            state[u"bar"_s] = toJson(widget->geometry());
    }
    return state;
}

void obey(const QString& line, quillon::StatusItem& item, quillon::AlertPresenter& alerts)
{
    const QString command = line.section(u' ', 0, 0);
    const QString argument = line.section(u' ', 1).replace(u'|', u'\n');
    if (command == "title"_L1)
        item.setAttributedTitle({.text = argument, .pointSize = 9.5, .paragraphSpacing = -5.0, .baselineOffset = -5.0});
    else if (command == "image"_L1)
        item.setImage(quillon::SymbolImage{.name = argument, .paletteColor = {}});
    else if (command == "orange"_L1)
        item.setImage(quillon::SymbolImage{.name = argument, .paletteColor = quillon::SymbolColor::SystemOrange});
    else if (command == "failure"_L1)
        item.setImage(quillon::SymbolImage{
            .name = argument, .paletteColor = {}, .description = u"It <failed>."_s, .needsAttention = true});
    else if (command == "alert"_L1)
        alerts.present({.messageText = u"Alert"_s, .informativeText = {}, .buttons = {}}, {});
    else if (command == "minimize"_L1)
        QApplication::activeModalWidget()->showMinimized();
    else if (command == "answer"_L1)
        QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
    else if (command == "press"_L1)
        QTest::keyClick(item.anchor().view, Qt::Key_Space);
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setApplicationDisplayName(u"Quillon"_s);

    QString chosen;
    QMenu menu;
    menu.addAction(u"Back up now"_s, &menu, [&chosen] { chosen = u"Back up now"_s; });
    QMenu* pause = menu.addMenu(u"Pause"_s);
    QObject::connect(pause, &QMenu::aboutToShow, pause, [pause] { pause->addAction(u"1 hour"_s); });
    menu.addAction(u"Browse A_B && C && __D"_s);
    menu.addAction(u"Quit"_s, &application, &QApplication::quit);

    quillon::ModalAlertPresenter alerts;
    const auto item = quillon::makeStatusItem(placementNamed(QApplication::arguments().value(1)));
    item->setAttributedTitle(
        {.text = u"Next:\n5h 12m"_s, .pointSize = 9.5, .paragraphSpacing = -5.0, .baselineOffset = -5.0});
    item->setImage(quillon::SymbolImage{.name = u"clock.arrow.circlepath"_s, .paletteColor = {}});
    item->setMenu(&menu);

    QSocketNotifier input(fileno(stdin), QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &application, [&] {
        std::string line;
        if (!std::getline(std::cin, line)) {
            QApplication::quit();
            return;
        }
        obey(QString::fromStdString(line), *item, alerts);
        const auto answer = QJsonDocument(screenState(*item, menu, chosen)).toJson(QJsonDocument::Compact);
        std::cout << answer.toStdString() << std::endl;
    });
    return QApplication::exec();
}
