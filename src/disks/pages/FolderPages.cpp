#include "FolderPages.h"

#include "BackupSetup.h"
#include "LocalizedString.h"
#include "Setup.h"
#include "ShownText.h"

#include <QDir>
#include <QMenu>
#include <QPushButton>

namespace quillon {

using namespace Qt::StringLiterals;

SourcesPage::SourcesPage(Setup& setup, QWidget* parent)
    : ListPage(localizedString("disksSourcesTitle"), localizedString("disksSourcesExplanation"), parent)
    , setup_(setup)
{
    connect(addButton(panelTitle("disksAddFolderTitle")), &QPushButton::clicked, this, [this] {
        choose(localizedString("disksAddFolderTitle"), false, [this](const QString& path) { add(path); });
    });
    connect(this, &ListPage::removeRequested, this, &SourcesPage::remove);
}

void SourcesPage::reload()
{
    setup_.read({u"listsources"_s, u"-X"_s}, [this](const QByteArray& answer) {
        const auto paths = readPaths(answer);
        if (!paths)
            return false;
        sources_ = *paths;
        std::vector<ListEntry> entries;
        for (const QString& path : sources_)
            entries.push_back(sourceEntry(path));
        setEntries(entries, {}); // at least the home folder
        return true;
    });
}

void SourcesPage::add(const QString& path)
{
    // The home folder is backed up only until a folder is named. Whoever adds one does not mean to lose it.
    if (sources_.size() == 1)
        setup_.prepare({u"addsource"_s, u"--"_s, sources_.first()});
    setup_.change({u"addsource"_s, u"--"_s, path}, localizedString("disksAddFailed").arg(shownName(path)));
}

void SourcesPage::remove(const QString& path, const QString& name)
{
    const auto go = [this, path, name] {
        setup_.change({u"removesource"_s, u"--"_s, path}, localizedString("disksRemoveFailed").arg(name));
    };
    // The home folder takes the place of the last folder that was named. Nobody expects that much.
    if (sources_.size() == 1 && path != QDir::homePath())
        setup_.confirm(localizedString("disksHomeAlertMessage"), localizedString("disksHomeAlertInformative").arg(name),
                       localizedString("disksRemoveTitle"), go);
    else
        go();
}

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
