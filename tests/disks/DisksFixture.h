#pragma once

#include "Alert.h"
#include "DisksWindow.h"
#include "EntryDelegate.h"
#include "EventLoop.h"
#include "ListPage.h"
#include "LocalizedString.h"
#include "ModalAlertPresenter.h"
#include "PracticeTmutil.h"
#include "QtRunLoop.h"
#include "Task.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QTabBar>
#include <QTest>
#include <QTextEdit>

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;

/// The real window over the real tmutil, or over a script in its place.
class DisksWindowFixture : public testing::Test {
protected:
    enum Page { Disks, Sources, Exclusions };

    void open() { open(practice_.executable()); }
    void open(const QString& tmutil)
    {
        window_ = std::make_unique<DisksWindow>(Setup::Services{launcher_, runLoop_, alerts_, tmutil},
                                                practice_.path(u"lsblk"_s));
        window_->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window_.get()));
    }

    /// A tool that does as the shell script says.
    QString scripted(const QString& name, const QByteArray& script) const
    {
        practice_.write(name, "#!/bin/sh\nPATH=/usr/bin:/bin\n" + script);
        QFile::setPermissions(practice_.path(name), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return practice_.path(name);
    }

    ListPage* page(Page which) const
    {
        auto* tabs = window_->findChild<QTabBar*>();
        tabs->setCurrentIndex(which);
        for (ListPage* page : window_->findChildren<ListPage*>()) {
            if (page->isVisible())
                return page;
        }
        return nullptr;
    }
    QListWidget* list(Page which) const { return page(which)->findChild<QListWidget*>(); }
    QStringList titles(Page which) const
    {
        QStringList titles;
        const QListWidget* entries = list(which);
        for (int row = 0; row < entries->count(); ++row)
            titles.append(entries->item(row)->text());
        return titles;
    }
    bool eventuallyShows(Page which, const QStringList& expected) const
    {
        return runUntil([&] { return titles(which) == expected; });
    }
    static QStringList details(const QListWidgetItem* item)
    {
        return item->data(EntryDelegate::detailsRole).toStringList();
    }

    QPushButton* button(Page which, const QString& title) const
    {
        for (QPushButton* button : page(which)->findChildren<QPushButton*>()) {
            if (button->text() == title)
                return button;
        }
        return nullptr;
    }
    void click(Page which, const QString& title) const
    {
        QPushButton* const wanted = button(which, title);
        ASSERT_TRUE(wanted != nullptr) << title.toStdString();
        ASSERT_TRUE(runUntil([wanted] { return wanted->isEnabled(); }));
        QTest::mouseClick(wanted, Qt::LeftButton);
    }
    void clickEntry(Page which, int row) const
    {
        QListWidget* entries = list(which);
        QTest::mouseClick(entries->viewport(), Qt::LeftButton, {},
                          entries->visualItemRect(entries->item(row)).center());
        ASSERT_EQ(entries->currentRow(), row);
    }

    /// Of the menu of a button; its actions are named after their keys.
    void chooseToAdd(const char* key) const
    {
        QPushButton* const add = button(Exclusions, localizedString("disksAddTitle"));
        ASSERT_TRUE(runUntil([add] { return add->isEnabled(); }));
        add->menu()->findChild<QAction*>(QLatin1StringView(key))->trigger();
    }

    /// The dialog of that object name, once it is there.
    QDialog* panel(const QString& objectName) const
    {
        QDialog* found = nullptr;
        runUntil([&] {
            found = window_->findChild<QDialog*>(objectName);
            return found && found->isVisible();
        });
        return found;
    }
    bool eventuallyCloses(const QString& objectName) const
    {
        return runUntil([&] { return !window_->findChild<QDialog*>(objectName); });
    }
    static void press(const QWidget* in, const QString& objectName)
    {
        auto* const wanted = in->findChild<QPushButton*>(objectName);
        ASSERT_TRUE(wanted && runUntil([wanted] { return wanted->isVisible() && wanted->isEnabled(); }))
            << objectName.toStdString();
        QTest::mouseClick(wanted, Qt::LeftButton);
    }

    /// Puts a path into the open file dialog, as if pasted: completion would offer a folder's contents instead.
    void chooseInDialog(const QString& path) const
    {
        auto* dialog = window_->findChild<QFileDialog*>();
        ASSERT_TRUE(dialog && runUntil([dialog] { return dialog->isVisible(); }));
        dialog->findChild<QLineEdit*>(u"fileNameEdit"_s)->setText(path);
        auto* buttons = dialog->findChild<QDialogButtonBox*>();
        for (QAbstractButton* button : buttons->buttons()) {
            if (buttons->buttonRole(button) == QDialogButtonBox::AcceptRole)
                QTest::mouseClick(button, Qt::LeftButton);
        }
        ASSERT_TRUE(runUntil([this] { return !window_->findChild<QFileDialog*>(); }));
    }

    static Alert* alert()
    {
        Alert* shown = nullptr;
        runUntil([&] {
            const QWidget* window = QApplication::activeModalWidget();
            shown = window ? window->findChild<Alert*>() : nullptr;
            return shown != nullptr;
        });
        return shown;
    }
    static QString textOfAlert(const QString& objectName)
    {
        const Alert* shown = alert();
        return shown ? shown->findChild<QTextEdit*>(objectName)->toPlainText() : QString();
    }
    static void answerAlert(const char* buttonKey)
    {
        const QPointer<Alert> shown = alert();
        ASSERT_TRUE(shown);
        for (QPushButton* button : shown->buttons()) {
            if (button->text() == localizedString(buttonKey)) {
                QTest::mouseClick(button, Qt::LeftButton);
                runUntil([&shown] { return !shown || !shown->isVisible(); });
                return;
            }
        }
        FAIL() << "no button " << buttonKey;
    }

    QString visibleText() const
    {
        QStringList texts;
        for (const QLabel* label : window_->findChildren<QLabel*>()) {
            if (label->isVisible())
                texts.append(label->text());
        }
        return texts.join(u'\n');
    }

    PracticeTmutil practice_{QStringLiteral(TMUTIL_EXECUTABLE)};
    QtRunLoop runLoop_;
    Task launcher_;
    ModalAlertPresenter alerts_;
    std::unique_ptr<DisksWindow> window_;
};

} // namespace quillon
