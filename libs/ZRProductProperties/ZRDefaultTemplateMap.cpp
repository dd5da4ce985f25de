#include "ZRDefaultTemplateMap.h"

#include "ZRPageTypeList.h"
#include "ZRXMLDiagnostics.h"
#include "ZRXMLParser.h"
#include "ZRXMLStringPool.h"
#include "ZRXMLVocabulary.h"

#include <QDomElement>
#include <QList>
#include <QStringTokenizer>
#include <QStringView>

#include <algorithm>

namespace {
const ZRXMLVocabulary vocabulary(QStringLiteral("defaults"), {}, { QStringLiteral("default") });
const ZRXMLVocabulary defaultVocabulary(QStringLiteral("default"),
    { QStringLiteral("pageType"), QStringLiteral("alignment"), QStringLiteral("pageNr"),
        QStringLiteral("scenePageCount"), QStringLiteral("templates"), QStringLiteral("layout"),
        QStringLiteral("background"), QStringLiteral("design") },
    {});
} // namespace

ZRDefaultTemplateMap::ZRDefaultTemplateMap() = default;

ZRDefaultTemplateMap::ZRDefaultTemplateMap(const QDomElement &element)
{
    applyDefaultsNode(element);
}

void ZRDefaultTemplateMap::applyDefaultsNode(const QDomElement &element)
{
    vocabulary.check(element);
    for (QDomElement node = element.firstChildElement(defaultVocabulary.element()); !node.isNull();
         node = node.nextSiblingElement(defaultVocabulary.element())) {
        defaultVocabulary.check(node);
        if (ZRXMLDiagnostics::isActive()) {
            ZRXMLDiagnostics::checkKeys<ZRPageType>(
                node.attributes().namedItem(QStringLiteral("pageType")), QStringLiteral("page type"));
            ZRXMLDiagnostics::checkKeys<ZRPageAlignment>(
                node.attributes().namedItem(QStringLiteral("alignment")), QStringLiteral("alignment"));
        }
        const ZRPageTypeList pageTypes(ZRXMLParser::attribute(node, QStringLiteral("pageType"), QString(), true));
        const ZRPageAlignment alignment(ZRXMLParser::attribute(
            node, QStringLiteral("alignment"), QStringLiteral("left,right,top,bottom,center,middle"), true));
        const int pageNumber = ZRXMLParser::intAttribute(node, QStringLiteral("pageNr"), -1);
        const int scenePageCount = ZRXMLParser::intAttribute(node, QStringLiteral("scenePageCount"), -1);

        // "templates" is the short form "background,layout"
        const QString shortForm = ZRXMLParser::attribute(node, QStringLiteral("templates"), QString(), true);
        QStringView parts[2];
        int partCount = 0;
        for (const QStringView part : qTokenize(shortForm, u',', Qt::SkipEmptyParts)) {
            if (partCount < 2)
                parts[partCount] = part;
            ++partCount;
        }
        const QString layoutDefault = partCount == 2 ? parts[1].toString() : QString();
        const QString backgroundDefault = partCount == 0 ? QStringLiteral("201") : parts[0].toString();

        const QString layout = ZRXMLStringPool::share(
            removeUmlauts(ZRXMLParser::attribute(node, QStringLiteral("layout"), layoutDefault, true).trimmed()));
        const QString background = ZRXMLStringPool::share(removeUmlauts(
            ZRXMLParser::attribute(node, QStringLiteral("background"), backgroundDefault, true).trimmed()));
        const QString design = ZRXMLStringPool::share(
            removeUmlauts(ZRXMLParser::attribute(node, QStringLiteral("design"), QString(), true)));

        for (const ZRPageType &pageType : pageTypes) {
            ZRPageAlignment::Table::forEachBit(alignment.value(), [&](ZRPageAlignmentEnum flag) {
                const ZRPageContext context(pageType, flag);
                insert(ZRDefaultTemplateKey(context, ZRDefaultTemplateLayout, pageNumber, scenePageCount), layout);
                insert(
                    ZRDefaultTemplateKey(context, ZRDefaultTemplateBackground, pageNumber, scenePageCount), background);
                insert(ZRDefaultTemplateKey(context, ZRDefaultTemplateDesign, pageNumber, scenePageCount), design);
            });
        }
    }
}

QString ZRDefaultTemplateMap::findTemplate(const ZRDefaultTemplateKey &key) const
{
    QString name = value(key);
    if (!name.isEmpty())
        return name;
    if (key.scenePageCount() != -1) {
        name = value(ZRDefaultTemplateKey(key.pageContext(), key.defaultTemplateType(), -1, key.scenePageCount()));
        if (!name.isEmpty())
            return name;
    }
    return value(ZRDefaultTemplateKey(key.pageContext(), key.defaultTemplateType(), -1, -1));
}

QString ZRDefaultTemplateMap::removeUmlauts(const QString &text) const
{
    // Characters match as Qt matches them ignoring case, by their case folding, so capitals (the
    // capital sharp s too) are replaced by the same lower-case pairs. No character below U+00C0 folds
    // to one of them.
    const auto replacement = [](QChar c) {
        if (c.unicode() < 0xC0)
            return QLatin1String();
        switch (c.toCaseFolded().unicode()) {
        case 0x00E4:
            return QLatin1String("ae");
        case 0x00F6:
            return QLatin1String("oe");
        case 0x00FC:
            return QLatin1String("ue");
        case 0x00DF:
            return QLatin1String("ss");
        default:
            return QLatin1String();
        }
    };
    const auto first = std::find_if(text.cbegin(), text.cend(), [&](QChar c) { return !replacement(c).isEmpty(); });
    // Most names have none and are returned without a copy.
    if (first == text.cend())
        return text;
    QString result;
    result.reserve(text.size() + 8);
    result.append(QStringView(text.cbegin(), first));
    for (auto it = first; it != text.cend(); ++it) {
        const QLatin1String pair = replacement(*it);
        if (pair.isEmpty())
            result.append(*it);
        else
            result.append(pair);
    }
    return result;
}
