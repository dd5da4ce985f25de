#include "ZRDefaultTemplateMap.h"

#include "ZRPageTypeList.h"
#include "ZRXMLParser.h"

#include <QDomElement>
#include <QList>
#include <QStringList>

#include <algorithm>

ZRDefaultTemplateMap::ZRDefaultTemplateMap() = default;

ZRDefaultTemplateMap::ZRDefaultTemplateMap(const QDomElement &element)
{
    applyDefaultsNode(element);
}

void ZRDefaultTemplateMap::applyDefaultsNode(const QDomElement &element)
{
    for (QDomElement node = element.firstChildElement(QStringLiteral("default")); !node.isNull();
         node = node.nextSiblingElement(QStringLiteral("default"))) {
        const ZRPageTypeList pageTypes(ZRXMLParser::attribute(node, QStringLiteral("pageType"), QString(), true));
        const ZRPageAlignment alignment(ZRXMLParser::attribute(
            node, QStringLiteral("alignment"), QStringLiteral("left,right,top,bottom,center,middle"), true));
        const int pageNumber = ZRXMLParser::intAttribute(node, QStringLiteral("pageNr"), -1);
        const int scenePageCount = ZRXMLParser::intAttribute(node, QStringLiteral("scenePageCount"), -1);

        // "templates" is the short form "background,layout"
        const QStringList templates = ZRXMLParser::attribute(node, QStringLiteral("templates"), QString(), true)
                                          .split(QLatin1Char(','), Qt::SkipEmptyParts);
        const QString layoutDefault = templates.size() == 2 ? templates.at(1) : QString();
        const QString backgroundDefault = templates.isEmpty() ? QStringLiteral("201") : templates.at(0);

        const QString layout
            = removeUmlauts(ZRXMLParser::attribute(node, QStringLiteral("layout"), layoutDefault, true).trimmed());
        const QString background = removeUmlauts(
            ZRXMLParser::attribute(node, QStringLiteral("background"), backgroundDefault, true).trimmed());
        const QString design = removeUmlauts(ZRXMLParser::attribute(node, QStringLiteral("design"), QString(), true));

        QList<ZRPageAlignmentEnum> alignmentFlags
            = alignment.enumToStringTable()->splitToBits(alignment.value()).values();
        std::sort(alignmentFlags.begin(), alignmentFlags.end());

        for (const ZRPageType &pageType : pageTypes) {
            for (const ZRPageAlignmentEnum flag : std::as_const(alignmentFlags)) {
                const ZRPageContext context(pageType, flag);
                insert(ZRDefaultTemplateKey(context, ZRDefaultTemplateLayout, pageNumber, scenePageCount), layout);
                insert(
                    ZRDefaultTemplateKey(context, ZRDefaultTemplateBackground, pageNumber, scenePageCount), background);
                insert(ZRDefaultTemplateKey(context, ZRDefaultTemplateDesign, pageNumber, scenePageCount), design);
            }
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
    QString result = text;
    result.replace(QStringLiteral("\u00e4"), QStringLiteral("ae"), Qt::CaseInsensitive);
    result.replace(QStringLiteral("\u00f6"), QStringLiteral("oe"), Qt::CaseInsensitive);
    result.replace(QStringLiteral("\u00fc"), QStringLiteral("ue"), Qt::CaseInsensitive);
    result.replace(QStringLiteral("\u00df"), QStringLiteral("ss"), Qt::CaseInsensitive);
    return result;
}
