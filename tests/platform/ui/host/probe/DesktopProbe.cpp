// A program with nothing but a status item, or a popover and a child of it. It obeys the lines on its standard input
// and answers each with one line of JSON about what is on the screen; it ends with its input.

#include "Alert.h"
#include "Popover.h"
#include "StatusItem.h"

#include <QApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSocketNotifier>
#include <QTest>
#include <QWindow>

#include <functional>
#include <iostream>
#include <string>

using namespace Qt::StringLiterals;
using namespace quillon;

namespace {

/// Obeys a line and tells how things stand.
using Scene = std::function<QJsonObject(const QString& command, const QString& argument)>;

QJsonObject toJson(const QRect& rect)
{
    return {{u"x"_s, rect.x()}, {u"y"_s, rect.y()}, {u"w"_s, rect.width()}, {u"h"_s, rect.height()}};
}

AttributedTitle title(const QString& text)
{
    return {.text = text, .pointSize = 9.5, .paragraphSpacing = -5.0, .baselineOffset = -5.0};
}

class StatusItemScene {
public:
    explicit StatusItemScene(StatusItemPlacement placement)
        : item_(makeStatusItem(placement))
    {
        menu_.addAction(u"Back up now"_s, &menu_, [this] { chosen_ = u"Back up now"_s; });
        QMenu* pause = menu_.addMenu(u"Pause"_s);
        QObject::connect(pause, &QMenu::aboutToShow, pause, [pause] { pause->addAction(u"1 hour"_s); });
        menu_.addAction(u"Quit"_s);
        item_->setAttributedTitle(title(u"Next:\n5h 12m"_s));
        item_->setImage(SymbolImage{.name = u"clock.arrow.circlepath"_s, .paletteColor = {}});
        item_->setMenu(&menu_);
    }

    QJsonObject obey(const QString& command, QString argument)
    {
        if (command == "title"_L1)
            item_->setAttributedTitle(title(argument.replace(u'|', u'\n')));
        else if (command == "failure"_L1)
            item_->setImage(SymbolImage{
                .name = argument, .paletteColor = {}, .description = u"It <failed>."_s, .needsAttention = true});
        else if (command == "alert"_L1)
            alerts_.present({.messageText = u"Alert"_s, .informativeText = {}, .buttons = {}}, {});
        else if (command == "minimize"_L1)
            QApplication::activeModalWidget()->showMinimized();
        else if (command == "answer"_L1)
            QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
        else if (command == "press"_L1)
            QTest::keyClick(item_->anchor().view, Qt::Key_Space);

        QJsonObject state{{u"menuOpen"_s, menu_.isVisible()},
                          {u"chosen"_s, chosen_},
                          {u"isDark"_s, QApplication::palette().window().color().lightness() < 60}};
        if (const QWidget* alert = QApplication::activeModalWidget())
            state[u"alertMinimized"_s] = alert->isMinimized();
        if (const QRect icon = item_->anchor().screenRect; !icon.isNull())
            state[u"icon"_s] = toJson(icon);
        const auto widgets = QApplication::topLevelWidgets();
        for (const QWidget* widget : widgets) {
            if (widget->objectName() == "MenuBarWindow"_L1 && widget->isVisible() && !widget->isMinimized())
                state[u"bar"_s] = toJson(widget->geometry());
        }
        return state;
    }

private:
    QMenu menu_;
    QString chosen_;
    ModalAlertPresenter alerts_;
    std::unique_ptr<StatusItem> item_;
};

class PopoverScene {
public:
    PopoverScene()
    {
        backdrop_.setGeometry(0, 0, 1280, 800);
        backdrop_.show();
        text_->setFixedSize(200, 40);
        popover_.setContentView(text_);
        popover_.setBehavior(PopoverBehavior::Transient);
        button_->setCheckable(true);
        child_.setContentView(button_);
    }

    QJsonObject obey(const QString& command, const QString& /*argument*/)
    {
        if (command == "show"_L1)
            popover_.showRelativeTo({.screenRect = QRect(600, 100, 40, 20)}, RectEdge::MinY);
        else if (command == "child"_L1)
            child_.showRelativeTo({.view = text_}, RectEdge::MinY);
        else if (command == "key"_L1)
            QTest::keyClick(text_, Qt::Key_Space); // as a window system does that leaves the keyboard with the parent
        else if (command == "dismiss"_L1)
            child_.windowHandle()->close();
        return {{u"shown"_s, popover_.isShown()},
                {u"visible"_s, popover_.isVisible()},
                {u"active"_s, text_->hasFocus()},
                {u"text"_s, text_->text()},
                {u"childPressed"_s, button_->isChecked()},
                {u"content"_s, toJson({text_->mapToGlobal(QPoint()), text_->size()})}};
    }

private:
    QWidget backdrop_;
    Popover popover_;
    QLineEdit* text_ = new QLineEdit;
    Popover child_;
    QPushButton* button_ = new QPushButton; // without a seat Qt has no input method for texts under Wayland
};

Scene makeScene(const QString& name)
{
    if (name == "popover"_L1)
        return std::bind_front(&PopoverScene::obey, std::make_shared<PopoverScene>());
    using enum StatusItemPlacement;
    const auto placement = name == "tray"_L1 ? Tray : name == "bar"_L1 ? Bar : Automatic;
    return std::bind_front(&StatusItemScene::obey, std::make_shared<StatusItemScene>(placement));
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setApplicationDisplayName(u"Quillon"_s);
    const Scene scene = makeScene(QApplication::arguments().value(1));
    QSocketNotifier input(fileno(stdin), QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &application, [&scene] {
        std::string line;
        if (!std::getline(std::cin, line)) {
            QApplication::quit();
            return;
        }
        const QString command = QString::fromStdString(line);
        const QJsonObject state = scene(command.section(u' ', 0, 0), command.section(u' ', 1));
        std::cout << QJsonDocument(state).toJson(QJsonDocument::Compact).toStdString() << std::endl;
    });
    return QApplication::exec();
}
