#include "CoreFoundation_macos.h"
#include "PropertyList.h"
#include "UserDefaults.h"

#include <QDateTime>
#include <QVariantList>
#include <QVariantMap>

#include <iostream>

namespace quillon {

namespace {

using OwnedObject = CFOwned<CFTypeRef>;

QVariant fromNumber(CFNumberRef number)
{
    if (CFNumberIsFloatType(number)) {
        double value = 0;
        CFNumberGetValue(number, kCFNumberDoubleType, &value);
        return value;
    }
    qlonglong value = 0;
    CFNumberGetValue(number, kCFNumberLongLongType, &value);
    return value;
}

QVariant fromObject(CFTypeRef object);

QVariantList fromArray(CFArrayRef array)
{
    QVariantList elements;
    const CFIndex count = CFArrayGetCount(array);
    elements.reserve(count);
    for (CFIndex i = 0; i < count; ++i)
        elements.append(fromObject(CFArrayGetValueAtIndex(array, i)));
    return elements;
}

QVariantMap fromDictionary(CFDictionaryRef dictionary)
{
    QVariantMap entries;
    CFDictionaryApplyFunction(
        dictionary,
        [](const void* key, const void* value, void* context) {
            if (CFGetTypeID(key) == CFStringGetTypeID())
                static_cast<QVariantMap*>(context)->insert(QString::fromCFString(static_cast<CFStringRef>(key)),
                                                           fromObject(value));
        },
        &entries);
    return entries;
}

/// Invalid for an object that is no property list.
QVariant fromObject(CFTypeRef object)
{
    const CFTypeID type = CFGetTypeID(object);
    if (type == CFStringGetTypeID())
        return QString::fromCFString(static_cast<CFStringRef>(object));
    if (type == CFBooleanGetTypeID())
        return static_cast<bool>(CFBooleanGetValue(static_cast<CFBooleanRef>(object)));
    if (type == CFNumberGetTypeID())
        return fromNumber(static_cast<CFNumberRef>(object));
    if (type == CFDateGetTypeID())
        return QDateTime::fromCFDate(static_cast<CFDateRef>(object)).toUTC();
    if (type == CFDataGetTypeID())
        return QByteArray::fromCFData(static_cast<CFDataRef>(object));
    if (type == CFArrayGetTypeID())
        return fromArray(static_cast<CFArrayRef>(object));
    if (type == CFDictionaryGetTypeID())
        return fromDictionary(static_cast<CFDictionaryRef>(object));
    return {};
}

OwnedObject toObject(const QVariant& value, int depth = 0);

OwnedObject toArray(const QVariantList& elements, int depth)
{
    CFOwned<CFMutableArrayRef> array(CFArrayCreateMutable(nullptr, elements.size(), &kCFTypeArrayCallBacks));
    for (const QVariant& element : elements) {
        const OwnedObject object = toObject(element, depth);
        if (!object)
            return nullptr;
        CFArrayAppendValue(array.get(), object.get());
    }
    return OwnedObject(array.release());
}

OwnedObject toDictionary(const QVariantMap& entries, int depth)
{
    CFOwned<CFMutableDictionaryRef> dictionary(CFDictionaryCreateMutable(
        nullptr, entries.size(), &kCFTypeDictionaryKeyCallBacks, &kCFTypeDictionaryValueCallBacks));
    for (auto entry = entries.begin(); entry != entries.end(); ++entry) {
        const CFOwned<CFStringRef> key(entry.key().toCFString());
        const OwnedObject object = toObject(entry.value(), depth);
        if (!object)
            return nullptr;
        CFDictionarySetValue(dictionary.get(), key.get(), object.get());
    }
    return OwnedObject(dictionary.release());
}

/// Null for a value of a kind that property lists do not have.
OwnedObject toObject(const QVariant& value, int depth)
{
    switch (value.typeId()) {
    case QMetaType::QString:
        return OwnedObject(value.toString().toCFString());
    case QMetaType::Bool:
        return OwnedObject(CFRetain(value.toBool() ? kCFBooleanTrue : kCFBooleanFalse));
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong: {
        const qlonglong number = value.toLongLong();
        return OwnedObject(CFNumberCreate(nullptr, kCFNumberLongLongType, &number));
    }
    case QMetaType::Float:
    case QMetaType::Double: {
        const double number = value.toDouble();
        return OwnedObject(CFNumberCreate(nullptr, kCFNumberDoubleType, &number));
    }
    case QMetaType::QDateTime:
        return OwnedObject(value.toDateTime().toCFDate());
    case QMetaType::QByteArray:
        return OwnedObject(value.toByteArray().toCFData());
    case QMetaType::QVariantList:
        return depth < propertylist::maximumNesting ? toArray(value.toList(), depth + 1) : nullptr;
    case QMetaType::QVariantMap:
        return depth < propertylist::maximumNesting ? toDictionary(value.toMap(), depth + 1) : nullptr;
    default:
        return nullptr;
    }
}

/// The preferences of the application, as NSUserDefaults shows them: managed and global domains are looked through too.
/// They are named by its identifier, so that a tool beside it reads the same ones however it is called.
class PreferencesUserDefaults final : public UserDefaults {
public:
    PreferencesUserDefaults(const QString& identifier, DefaultsAccess access)
        : application_(identifier.toCFString())
        , access_(access)
    {
    }

protected:
    QVariant storedValue(const QString& key) const override
    {
        if (const auto unsaved = unsaved_.find(key); unsaved != unsaved_.end())
            return unsaved.value();
        const CFOwned<CFStringRef> name(key.toCFString());
        const OwnedObject value(CFPreferencesCopyAppValue(name.get(), application_.get()));
        return value ? fromObject(value.get()) : QVariant();
    }

    void storeValue(const QString& key, const QVariant& value) override
    {
        const OwnedObject object = value.isValid() ? toObject(value) : nullptr;
        if (value.isValid() && !object) {
            std::cerr << "the value of " << key.toStdString() << " cannot be stored" << std::endl;
            return;
        }
        if (access_ == DefaultsAccess::ReadOnly) {
            unsaved_.insert(key, value);
            return;
        }
        const CFOwned<CFStringRef> name(key.toCFString());
        CFPreferencesSetAppValue(name.get(), object.get(), application_.get()); // null removes the key
        if (!CFPreferencesAppSynchronize(application_.get()))
            std::cerr << "the settings could not be written" << std::endl;
    }

private:
    const CFOwned<CFStringRef> application_;
    const DefaultsAccess access_;
    QVariantMap unsaved_; ///< what was set on a read-only database
};

} // namespace

std::unique_ptr<UserDefaults> openUserDefaults(const QString& identifier, DefaultsAccess access, RunLoop& /*runLoop*/)
{
    return std::make_unique<PreferencesUserDefaults>(identifier, access);
}

} // namespace quillon
