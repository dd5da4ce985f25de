#include "ZRProductTypeDescription.h"
#include "ZRXMLVocabulary.h"

#include <QDomDocument>
#include <QFile>
#include <QHash>
#include <QSet>
#include <QtTest>

namespace {
/** The attributes and child elements that one element name has, in the schema or in the readers. */
struct Names
{
    QSet<QString> attributes;
    QSet<QString> children;
};
using Vocabulary = QHash<QString, Names>;

const QString xsNamespace = QStringLiteral("http://www.w3.org/2001/XMLSchema");

/** The schema's top-level definition of @p kind ("complexType", "attributeGroup", ...) named @p name. */
QDomElement definition(const QDomElement &schema, const QString &kind, const QString &name)
{
    for (QDomElement node = schema.firstChildElement(); !node.isNull(); node = node.nextSiblingElement()) {
        if (node.localName() == kind && node.attribute(QStringLiteral("name")) == name)
            return node;
    }
    return QDomElement();
}

/** Adds the attributes and child elements that @p parent declares, through groups and base types. */
void collect(const QDomElement &schema, const QDomElement &parent, Names *names)
{
    for (QDomElement node = parent.firstChildElement(); !node.isNull(); node = node.nextSiblingElement()) {
        const QString kind = node.localName();
        const QString name = node.attribute(QStringLiteral("name"), node.attribute(QStringLiteral("ref")));
        if (kind == QLatin1String("element")) {
            names->children.insert(name);
        } else if (kind == QLatin1String("attribute")) {
            names->attributes.insert(name);
        } else if (kind == QLatin1String("attributeGroup") || kind == QLatin1String("group")) {
            collect(schema, definition(schema, kind, name), names);
        } else if (kind != QLatin1String("annotation")) {
            if (kind == QLatin1String("extension") || kind == QLatin1String("restriction"))
                collect(schema,
                    definition(schema, QStringLiteral("complexType"), node.attribute(QStringLiteral("base"))), names);
            collect(schema, node, names);
        }
    }
}

/** Every element the schema names, with its attributes and children; elements of the same name merged. */
Vocabulary schemaVocabulary(QDomDocument document)
{
    const QDomElement schema = document.documentElement();
    Vocabulary result;
    const QDomNodeList elements = document.elementsByTagNameNS(xsNamespace, QStringLiteral("element"));
    for (int i = 0; i < elements.size(); ++i) {
        const QDomElement element = elements.at(i).toElement();
        if (!element.hasAttribute(QStringLiteral("name")))
            continue;
        Names &names = result[element.attribute(QStringLiteral("name"))];
        collect(schema, element, &names);
        collect(schema, definition(schema, QStringLiteral("complexType"), element.attribute(QStringLiteral("type"))),
            &names);
    }
    return result;
}

/** What the readers read, per element name, vocabularies of the same element name merged. */
Vocabulary readerVocabulary()
{
    Vocabulary result;
    const QList<const ZRXMLVocabulary *> all = ZRXMLVocabulary::all();
    for (const ZRXMLVocabulary *vocabulary : all) {
        Names &names = result[vocabulary->element()];
        const QStringList attributes = vocabulary->attributes();
        const QStringList children = vocabulary->children();
        names.attributes.unite(QSet<QString>(attributes.cbegin(), attributes.cend()));
        names.children.unite(QSet<QString>(children.cbegin(), children.cend()));
    }
    return result;
}

/** "what: a, b" for the names of @p names missing from @p others, sorted; empty when there are none. */
QString missing(const QString &what, const QSet<QString> &names, const QSet<QString> &others)
{
    QStringList list = QSet<QString>(names).subtract(others).values();
    list.sort();
    return list.isEmpty() ? QString() : what + QLatin1String(": ") + list.join(QLatin1String(", "));
}
} // namespace

class tst_Schema : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void elementMatchesReaders_data();
    void elementMatchesReaders();

private:
    Vocabulary m_schema;
    Vocabulary m_readers;
};

void tst_Schema::initTestCase()
{
    QFile file(QFINDTESTDATA("../schema/ZRProductDescription.xsd"));
    QVERIFY2(file.open(QIODevice::ReadOnly), "schema/ZRProductDescription.xsd not found");
    QDomDocument document;
    QString error;
    QVERIFY2(document.setContent(&file, true, &error), qPrintable(error));
    m_schema = schemaVocabulary(document);
    QVERIFY(m_schema.value(QStringLiteral("products")).children.contains(QStringLiteral("product")));
    // The readers' vocabularies are made when their libraries are loaded; using the library keeps it linked.
    const ZRProductTypeDescription description;
    Q_UNUSED(description)
    m_readers = readerVocabulary();
}

void tst_Schema::elementMatchesReaders_data()
{
    QTest::addColumn<QString>("element");

    // The schema's elements and every element that the readers read inside one of them; the readers of
    // other files (colours, translations) are left out.
    QStringList names = m_schema.keys();
    QSet<QString> seen(names.cbegin(), names.cend());
    for (int i = 0; i < names.size(); ++i) {
        for (const QString &child : m_readers.value(names.at(i)).children) {
            if (!seen.contains(child)) {
                seen.insert(child);
                names.append(child);
            }
        }
    }
    names.sort();
    for (const QString &name : std::as_const(names))
        QTest::newRow(qPrintable(name)) << name;
}

void tst_Schema::elementMatchesReaders()
{
    QFETCH(QString, element);
    if (!m_schema.contains(element))
        QFAIL("read by a reader, missing from the schema");
    if (!m_readers.contains(element))
        QFAIL("in the schema, read by no reader");
    const Names schema = m_schema.value(element);
    const Names readers = m_readers.value(element);
    QStringList problems {
        missing(QStringLiteral("attributes read but missing from the schema"), readers.attributes, schema.attributes),
        missing(QStringLiteral("attributes in the schema that no reader reads"), schema.attributes, readers.attributes),
        missing(QStringLiteral("children read but missing from the schema"), readers.children, schema.children),
        missing(QStringLiteral("children in the schema that no reader reads"), schema.children, readers.children),
    };
    problems.removeAll(QString());
    QVERIFY2(problems.isEmpty(), qPrintable(problems.join(QLatin1String("; "))));
}

QTEST_GUILESS_MAIN(tst_Schema)
#include "tst_schema.moc"
