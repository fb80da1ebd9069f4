#include "ExclusionsPage.h"

#include "BackupSetup.h"
#include "LocalizedString.h"
#include "Setup.h"
#include "ShownText.h"

#include <QMenu>
#include <QPushButton>

namespace quillon {

using namespace Qt::StringLiterals;

ExclusionsPage::ExclusionsPage(Setup& setup, QWidget* parent)
    : ListPage(localizedString("disksExclusionsTitle"), localizedString("disksExclusionsExplanation"), parent)
    , setup_(setup)
{
    auto* menu = new QMenu(this);
    addButton(localizedString("disksAddTitle"))->setMenu(menu);
    const auto add = [this, menu](const char* key, const auto& choose) {
        menu->addAction(panelTitle(key), this, choose)->setObjectName(QLatin1StringView(key));
    };
    add("disksAddFolderTitle", [this] { addPath("disksAddFolderTitle", false); });
    add("disksAddFileTitle", [this] { addPath("disksAddFileTitle", true); });
    add("disksAddNameTitle", [this] { addByRule(ExclusionDialog::Kind::Name); });
    add("disksAddSizeTitle", [this] { addByRule(ExclusionDialog::Kind::Size); });
    connect(this, &ListPage::removeRequested, this, [this](const QString& id, const QString& title) {
        setup_.change(exclusionRemoval(id), localizedString("disksRemoveFailed").arg(title));
    });
}

void ExclusionsPage::reload()
{
    setup_.read({u"listexclusions"_s, u"-X"_s}, [this](const QByteArray& answer) {
        const auto exclusions = readExclusions(answer);
        if (exclusions)
            setEntries(exclusionEntries(*exclusions), localizedString("disksNoExclusions"));
        return exclusions.has_value();
    });
}

void ExclusionsPage::addPath(const char* titleKey, bool files)
{
    choose(localizedString(titleKey), files, [this](const QString& path) {
        setup_.change({u"addexclusion"_s, u"--"_s, path}, localizedString("disksAddFailed").arg(shownName(path)));
    });
}

void ExclusionsPage::addByRule(ExclusionDialog::Kind kind)
{
    auto* dialog = new ExclusionDialog(kind, setup_, this);
    const QString command = kind == ExclusionDialog::Kind::Name ? u"excludename"_s : u"excludelarger"_s;
    connect(dialog, &ExclusionDialog::chosen, this, [this, command](const QString& value) {
        setup_.change({command, u"--"_s, value}, localizedString("disksAddFailed").arg(shownText(value)));
    });
    dialog->open();
}

} // namespace quillon
