#include "SourcesPage.h"

#include "BackupSetup.h"
#include "LocalizedString.h"
#include "Setup.h"

#include <QDir>
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

} // namespace quillon
