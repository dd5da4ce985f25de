#include "ZRThematicCategoryTranslationRegistry.h"

#include "ZRBasisSettings.h"
#include "ZRDirectoryConfig.h"
#include "ZRLocaleAndTranslationManager.h"
#include "ZRThematicCategory.h"
#include "ZRThematicCategorySet.h"
#include "ZRXMLLoader.h"
#include "ZRXMLParser.h"

template class ZRSingleton<ZRThematicCategoryTranslationRegistry>;

namespace {
// Names of the TS format.
const QString tsElementName = QStringLiteral("TS");
const QString languageAttributeName = QStringLiteral("language");
const QString contextElementName = QStringLiteral("context");
const QString messageElementName = QStringLiteral("message");
const QString sourceElementName = QStringLiteral("source");
const QString translationElementName = QStringLiteral("translation");

// Metallic variants of colour categories share the translation of the plain colour.
const QString metallicSuffix = QStringLiteral("_metallic");

QLocale currentLocale()
{
    return ZRSingleton<ZRLocaleAndTranslationManager>::instance()->locale();
}
} // namespace

ZRThematicCategoryTranslationRegistry::ZRThematicCategoryTranslationRegistry()
    : ZRXMLBasedRegistry(QStringLiteral("ts"), true)
{
    init();
}

ZRThematicCategoryTranslationRegistry::~ZRThematicCategoryTranslationRegistry()
{
    qDeleteAll(m_translations);
}

bool ZRThematicCategoryTranslationRegistry::init()
{
    if (!ZRSingleton<ZRLocaleAndTranslationManager>::instance()->languageChanged())
        return ZRXMLBasedRegistry::init();
    if (initFromZIP())
        return true;
    return ZRXMLBasedRegistry::init();
}

bool ZRThematicCategoryTranslationRegistry::initFromZIP()
{
    const QByteArray document = ZRSingleton<ZRLocaleAndTranslationManager>::instance()->thematicTranslations();
    return parseXML(ZRXMLLoader::loadDocumentElement(document));
}

QStringList ZRThematicCategoryTranslationRegistry::supervisedDirectories() const
{
    return ZRSingleton<ZRDirectoryConfig>::instance()->allGlimmerThematicTranslationsDirectories();
}

QStringList ZRThematicCategoryTranslationRegistry::nameFilter() const
{
    static const QStringList filter { QString(QLatin1String("*_")
        + ZRSingleton<ZRLocaleAndTranslationManager>::instance()->languageCode() + QLatin1String("_*.")
        + fileSuffix()) };
    return filter;
}

bool ZRThematicCategoryTranslationRegistry::parseXML(const QFileInfo &file, bool primaryDirectory)
{
    Q_UNUSED(primaryDirectory)
    return parseXML(ZRXMLLoader::loadDocumentElement(file));
}

bool ZRThematicCategoryTranslationRegistry::parseXML(const QDomElement &root)
{
    if (root.tagName() != tsElementName) {
        qWarning("No TS element at beginning.");
        return false;
    }
    const QString language = ZRXMLParser::attribute(root, languageAttributeName, QString(), true);
    if (language.isEmpty()) {
        qWarning("No language attribute.");
        return false;
    }
    // Only the first context is read.
    const QDomElement context = root.firstChildElement(contextElementName);
    if (context.isNull()) {
        qWarning("No contextElement element after TS.");
        return false;
    }

    QHash<QString, QString> table;
    for (QDomElement message = context.firstChildElement(messageElementName); !message.isNull();
         message = message.nextSiblingElement(messageElementName)) {
        const QDomElement source = message.firstChildElement(sourceElementName);
        const QDomElement translation = message.firstChildElement(translationElementName);
        if (source.isNull() || translation.isNull())
            continue;
        // An unfinished translation is empty; the source text is shown instead.
        const QString text = translation.text();
        if (!text.isEmpty())
            table.insert(source.text().simplified(), text);
    }
    addTranslations(QLocale(language).name(), table);
    return true;
}

void ZRThematicCategoryTranslationRegistry::addTranslations(
    const QString &localeName, const QHash<QString, QString> &table)
{
    ZRWriteLocker locker(&m_lock);
    QHash<QString, QString> *&target = m_translations[localeName];
    if (!target)
        target = new QHash<QString, QString>;
    for (auto it = table.cbegin(); it != table.cend(); ++it)
        target->insert(it.key(), it.value());
}

QString ZRThematicCategoryTranslationRegistry::translation(const QString &source, const QLocale &locale) const
{
    ZRReadLocker locker(&m_lock);
    const QString key = source.simplified();
    const QHash<QString, QString> *table = m_translations.value(locale.name());
    if (table) {
        const auto it = table->constFind(key);
        if (it != table->cend())
            return it.value();
    }

    QString plainKey = key;
    plainKey.remove(metallicSuffix, Qt::CaseSensitive);
    if (table) {
        const auto it = table->constFind(plainKey);
        if (it != table->cend())
            return it.value();
    }

    // A table of the language alone (such as "en" read as the language's default territory) answers
    // for every territory of that language.
    if (const QHash<QString, QString> *languageTable = m_translations.value(QLocale(locale.language()).name())) {
        const auto it = languageTable->constFind(plainKey);
        if (it != languageTable->cend())
            return it.value();
    }
    return source;
}

QString ZRThematicCategoryTranslationRegistry::translate(const QString &source, const QLocale &locale) const
{
    return translation(source, locale);
}

QString ZRThematicCategoryTranslationRegistry::humanReadable(const ZRThematicCategory &category) const
{
    const QString visibleName = category.visibleName();
    QString text = translate(visibleName, currentLocale());
    // Maintainers see the untranslated name beside the translation.
    if (ZRSingleton<ZRBasisSettings>::instance()->runsInMasterMode())
        text += QStringLiteral(" (%1)").arg(visibleName);
    return text;
}

QStringList ZRThematicCategoryTranslationRegistry::toVisibleStringList(const ZRThematicCategorySet &set) const
{
    QStringList result;
    result.reserve(set.size());
    for (const ZRThematicCategory &category : set)
        result.append(humanReadable(category));
    return result;
}
