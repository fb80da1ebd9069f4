#include "AboutViewController.h"

#include "DataHelper.h"
#include "LocalizedString.h"
#include "RunLoop.h"

#include <QLabel>
#include <QVBoxLayout>

namespace quillon {

using namespace Qt::StringLiterals;

AboutViewController::AboutViewController(RunLoop& runLoop, QWidget* parent)
    : QWidget(parent)
{
    auto* name = new QLabel(u"Quillon"_s, this);
    QFont heading = name->font();
    heading.setBold(true);
    name->setFont(heading);
    const QString version = u"%1: %2"_s.arg(localizedString("versionTitle"), DataHelper::bundleVersionString());
    const QString copyright = localizedString("copyrightTitle").arg(DataHelper::getCurrentYear(runLoop.now()));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(name, 0, Qt::AlignHCenter);
    layout->addWidget(new QLabel(version, this), 0, Qt::AlignHCenter);
    layout->addWidget(new QLabel(copyright, this), 0, Qt::AlignHCenter);
}

} // namespace quillon
