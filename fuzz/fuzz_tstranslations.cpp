// A TS translation document of the category names, handed to the translation registry as bytes the
// way the locale manager hands it over after a change of language, then looked up.

#include "FuzzSupport.h"

#include "ZRDirectoryConfig.h"
#include "ZRLocaleAndTranslationManager.h"
#include "ZRThematicCategoryTranslationRegistry.h"

#include <QDomDocument>
#include <QDomNodeList>
#include <QTemporaryDir>

namespace {
// At most this many sources of the document are looked up again, so that big inputs stay fast.
constexpr int lookedUpSources = 32;
} // namespace

void fuzzSetUp()
{
    // No translation files: a document that cannot be read makes the registry scan an empty directory.
    static QTemporaryDir emptyDirectory;
    if (!emptyDirectory.isValid())
        std::abort();
    ZRSingleton<ZRDirectoryConfig>::instance()->setGlimmerThematicTranslationsDirectories({ emptyDirectory.path() });
    ZRSingleton<ZRLocaleAndTranslationManager>::instance()->setLanguageChanged(true);
}

void fuzzOneInput(const uint8_t *data, size_t size)
{
    const QByteArray document(reinterpret_cast<const char *>(data), qsizetype(size));
    ZRSingleton<ZRLocaleAndTranslationManager>::instance()->setThematicTranslations(document);
    // A registry of its own for every input: the constructor reads the document (init(), initFromZIP()).
    const ZRThematicCategoryTranslationRegistry registry;

    QDomDocument parsed;
    if (!parsed.setContent(document))
        return;
    const QDomElement root = parsed.documentElement();
    const QLocale locale(root.attribute(QStringLiteral("language")));
    const QLocale languageOnly(locale.language());
    const QDomNodeList sources = root.elementsByTagName(QStringLiteral("source"));
    for (int i = 0; i < sources.size() && i < lookedUpSources; ++i) {
        const QString source = sources.at(i).toElement().text();
        for (const QString &text : { source, QString(source + QStringLiteral("_metallic")), source.toUpper() }) {
            for (const QLocale &where : { locale, languageOnly }) {
                const QString translated = registry.translate(text, where);
                // Empty translations are never stored, so a lookup gives a translation or the text itself.
                FuzzSupport::check(translated == text || !translated.isEmpty(), "a lookup never gives an empty text");
            }
        }
    }
}
