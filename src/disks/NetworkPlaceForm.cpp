#include "NetworkPlaceForm.h"

#include "ListPage.h"
#include "LocalizedString.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

#include <array>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

using Kind = NetworkPlace::Kind;
using Field = NetworkPlace::Field;

constexpr std::array allFields{Field::Server,   Field::Port,      Field::Path,      Field::User,   Field::KeyFile,
                               Field::Password, Field::AccessKey, Field::SecretKey, Field::Region, Field::Certificate};

bool isSecret(Field field)
{
    return field == Field::Password || field == Field::SecretKey;
}

/// Of a place that is set already.
bool isUntold(Field field)
{
    return isSecret(field) || field == Field::AccessKey;
}

NetworkPlace placeOf(const BackupDisk& disk)
{
    NetworkPlace place = NetworkPlace::fromUrl(disk.path).value_or(NetworkPlace());
    for (const auto& [field, text] : {std::pair{Field::KeyFile, disk.network->keyFile},
                                      {Field::Region, disk.network->region},
                                      {Field::Certificate, disk.network->certificate}}) {
        if (!text.isEmpty())
            place.texts.insert(field, text);
    }
    return place;
}

/// What stands in an empty field of a new place: an example, or that it can stay empty.
QString placeholder(Field field, const NetworkPlace& place)
{
    const bool isSftp = place.kind == Kind::Sftp;
    switch (field) {
    case Field::Server:
        return place.kind == Kind::S3 ? u"s3.example.com"_s : u"nas.example.org"_s;
    case Field::Port:
        return isSftp ? u"22"_s : QString::number(place.secure ? 443 : 80);
    case Field::Path:
        if (isSftp)
            return u"/srv/backups"_s;
        break;
    default:
        break;
    }
    return place.isOptional(field) ? localizedString("disksPlaceOptional") : QString();
}

} // namespace

NetworkPlaceForm::NetworkPlaceForm(const std::optional<BackupDisk>& known)
    : isKnown_(known)
    , form_(new QFormLayout(this))
{
    form_->setContentsMargins({});
    form_->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    if (known)
        addUrl(known->path);
    else
        addKind();
    for (const Field field : allFields)
        addField(field);
    if (known) {
        upload_ = addLimit("disksPlaceUpload", known->network->uploadLimit);
        download_ = addLimit("disksPlaceDownload", known->network->downloadLimit);
        before_ = placeOf(*known);
        setPlace(before_);
    }
    showFields();
}

void NetworkPlaceForm::addKind()
{
    kind_ = new QComboBox;
    kind_->setObjectName(u"kind"_s);
    for (const char* title : {"disksPlaceSftp", "disksPlaceRest", "disksPlaceS3"})
        kind_->addItem(localizedString(title));
    secure_ = new QCheckBox(localizedString("disksPlaceSecure"));
    secure_->setObjectName(u"secure"_s);
    secure_->setChecked(true);
    form_->addRow(localizedString("disksPlaceKind") + u':', kind_);
    form_->addRow(QString(), secure_);
    connect(kind_, &QComboBox::currentIndexChanged, this, &NetworkPlaceForm::showFields);
    connect(secure_, &QCheckBox::toggled, this, &NetworkPlaceForm::showFields);
}

void NetworkPlaceForm::addUrl(const QString& url)
{
    auto* field = new QLineEdit(url);
    field->setReadOnly(true);
    form_->addRow(localizedString("disksPlaceAddress") + u':', field);
}

void NetworkPlaceForm::addField(Field field)
{
    auto* edit = new QLineEdit;
    fields_[field] = edit;
    if (isSecret(field))
        edit->setEchoMode(QLineEdit::Password);
    const bool isFile = field == Field::KeyFile || field == Field::Certificate;
    auto* label = new QLabel;
    label->setBuddy(edit);
    form_->addRow(label, isFile ? withButton(field) : edit);
    connect(edit, &QLineEdit::textChanged, this, &NetworkPlaceForm::edited);
    if (field == Field::Server)
        connect(edit, &QLineEdit::editingFinished, this, &NetworkPlaceForm::takeUrl);
}

QWidget* NetworkPlaceForm::withButton(Field field)
{
    auto* box = new QWidget;
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins({});
    auto* button = new QPushButton(panelTitle("disksPlaceChooseTitle"));
    button->setAutoDefault(false);
    row->addWidget(fields_.at(field), 1);
    row->addWidget(button);
    connect(button, &QPushButton::clicked, this, [this, field] { chooseFile(field); });
    return box;
}

QSpinBox* NetworkPlaceForm::addLimit(const char* title, qint64 limit)
{
    constexpr int most = 10'000'000; // as tmutil has it
    auto* box = new QSpinBox;
    box->setObjectName(QString::fromLatin1(title));
    box->setRange(0, most);
    box->setSpecialValueText(localizedString("disksPlaceNoLimit"));
    box->setSuffix(rateUnit);
    box->setStepType(QAbstractSpinBox::AdaptiveDecimalStepType);
    box->setValue(static_cast<int>(limit));
    form_->addRow(localizedString(title) + u':', box);
    connect(box, &QSpinBox::valueChanged, this, &NetworkPlaceForm::edited);
    return box;
}

void NetworkPlaceForm::chooseFile(Field field)
{
    auto* dialog = new QFileDialog(this, fieldTitle(field, place().kind));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setFilter(dialog->filter() | QDir::Hidden); // keys are in ~/.ssh
    connect(dialog, &QFileDialog::fileSelected, fields_.at(field), &QLineEdit::setText);
    dialog->open();
}

NetworkPlace NetworkPlaceForm::place() const
{
    NetworkPlace place = before_;
    if (kind_) {
        place.kind = static_cast<Kind>(kind_->currentIndex());
        place.secure = place.kind == Kind::Sftp || secure_->isChecked();
    }
    for (const auto& [field, edit] : fields_) {
        if (edit->text().isEmpty())
            place.texts.remove(field);
        else
            place.texts.insert(field, edit->text());
    }
    return place;
}

void NetworkPlaceForm::setPlace(const NetworkPlace& place)
{
    if (kind_) {
        kind_->setCurrentIndex(static_cast<int>(place.kind));
        secure_->setChecked(place.secure);
    }
    for (const auto& [field, edit] : fields_)
        edit->setText(place.texts.value(field));
}

QStringList NetworkPlaceForm::limits() const
{
    if (!isKnown_)
        return {};
    return {u"--upload-limit"_s, QString::number(upload_->value()), u"--download-limit"_s,
            QString::number(download_->value())};
}

/// A URL that was pasted whole, such as that on the page with the recovery key, fills in what it tells.
void NetworkPlaceForm::takeUrl()
{
    if (const auto place = NetworkPlace::fromUrl(fields_.at(Field::Server)->text()))
        setPlace(*place);
}

void NetworkPlaceForm::showFields()
{
    const NetworkPlace described = place();
    const QList<Field> asked = isKnown_ ? described.accessFields() : described.fields();
    for (const auto& [field, edit] : fields_) {
        QWidget* const row = edit->parentWidget() == this ? edit : edit->parentWidget();
        form_->setRowVisible(row, asked.contains(field));
        const QString title = fieldTitle(field, described.kind);
        qobject_cast<QLabel*>(form_->labelForField(row))->setText(title + u':');
        edit->setAccessibleName(title);
        edit->setPlaceholderText(isKnown_ && isUntold(field) ? localizedString("disksPlaceUnchanged")
                                                             : placeholder(field, described));
    }
    if (secure_)
        form_->setRowVisible(secure_, described.kind != Kind::Sftp);
    Q_EMIT rearranged();
    Q_EMIT edited();
}

} // namespace quillon
