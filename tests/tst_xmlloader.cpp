#include "ZRProductTypeDescription.h"
#include "ZRProductTypeDescriptionReader.h"
#include "ZRTestSupport.h"
#include "ZRXMLDiagnostics.h"
#include "ZRXMLLimits.h"
#include "ZRXMLLoader.h"

#include <QDirIterator>
#include <QDomDocument>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <memory>

namespace {
QByteArray nested(int depth)
{
    return QByteArray("<a>").repeated(depth) + QByteArray("</a>").repeated(depth);
}

QByteArray withAttributes(int count)
{
    QByteArray element = "<a";
    for (int i = 0; i < count; ++i)
        element += " n" + QByteArray::number(i) + "=''";
    return element + "/>";
}

QByteArray utf16(const QByteArray &document)
{
    const QString text = QString::fromUtf8(document);
    return QByteArray("\xFF\xFE") + QByteArray(reinterpret_cast<const char *>(text.utf16()), text.size() * 2);
}

/** A document of exactly @p size bytes, made of comments that stay within the value limit. */
QByteArray documentOfSize(qint64 size)
{
    QByteArray document = "<a>";
    const QByteArray end = "</a>";
    while (document.size() + end.size() < size) {
        const qint64 room = size - document.size() - end.size();
        document
            += room < 8 ? QByteArray(room, ' ') : "<!--" + QByteArray(qMin(room - 7, qint64(1000000)), 'c') + "-->";
    }
    return document + end;
}
} // namespace

class tst_XMLLoader : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral(".?"))); }

    void limits_data();
    void limits();
    void deepDocumentsOnSmallStack();
    void findings_data();
    void findings();
};

void tst_XMLLoader::limits_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<bool>("accepted");
    const QByteArray longValue(ZRXMLLimits::maxValueLength, 'x');
    QTest::newRow("element") << QByteArray("<a/>") << true;
    QTest::newRow("declaration, comments, PIs, CDATA, blank text")
        << QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n<!-- c --><?pi data?>\n"
                      "<a> x <b>  </b><![CDATA[  ]]><![CDATA[]]>&amp;&#32;<!--in--><?p q?></a><!--after-->")
        << true;
    QTest::newRow("blank character references")
        << QByteArray("<a><b>&#32;&#10;</b><c> &#160; </c>\xC2\xA0</a>") << true;
    QTest::newRow("references in values") << QByteArray("<a b='&#10;&amp;\t&lt;'>a&lt;b&#x41;c</a>") << true;
    QTest::newRow("bare document type") << QByteArray("<?xml version='1.0'?><!-- x --><!DOCTYPE TS><!-- y --><TS/>")
                                        << true;
    QTest::newRow("external document type")
        << QByteArray("<!DOCTYPE a PUBLIC \"-//x//y\" \"a.dtd\"><a>&nbsp;</a>") << true;
    QTest::newRow("blank internal subset") << QByteArray("<!DOCTYPE a [ ]><a/>") << true;
    QTest::newRow("namespaces") << QByteArray("<x:a xmlns:x='urn:x' x:b='1' xmlns='urn:d'><c y:d='2'/></x:a>") << true;
    QTest::newRow("Latin-1") << QByteArray("<?xml version='1.0' encoding='ISO-8859-1'?><a b='\xE4'>\xF6</a>") << true;
    QTest::newRow("UTF-16") << utf16("<?xml version='1.0' encoding='UTF-16'?><a b='\xC3\xA4'>t</a>") << true;
    QDirIterator samples(QStringLiteral(ZR_EXAMPLES_DIR), { QStringLiteral("*.xml"), QStringLiteral("*.ts") },
        QDir::Files, QDirIterator::Subdirectories);
    const QDir examples(QStringLiteral(ZR_EXAMPLES_DIR));
    while (samples.hasNext()) {
        QFile file(samples.next());
        QVERIFY(file.open(QIODevice::ReadOnly));
        QTest::newRow(qPrintable(examples.relativeFilePath(file.fileName()))) << file.readAll() << true;
    }
    QTest::newRow("long blank text") << "<a>" + QByteArray(ZRXMLLimits::maxValueLength + 1, ' ') + "</a>" << true;
    QTest::newRow("longest value, written with references")
        << "<a b='" + QByteArray("&amp;").repeated(ZRXMLLimits::maxValueLength) + "'/>" << true;
    QTest::newRow("empty element one level deeper") << QByteArray("<a>").repeated(ZRXMLLimits::maxDepth) + "<a/>"
            + QByteArray("</a>").repeated(ZRXMLLimits::maxDepth)
                                                    << false;
    QTest::newRow("deepest nesting") << nested(ZRXMLLimits::maxDepth) << true;
    QTest::newRow("one level deeper") << nested(ZRXMLLimits::maxDepth + 1) << false;
    QTest::newRow("most attributes") << withAttributes(ZRXMLLimits::maxAttributes) << true;
    QTest::newRow("one attribute more") << withAttributes(ZRXMLLimits::maxAttributes + 1) << false;
    QTest::newRow("most attributes, UTF-16") << utf16(withAttributes(ZRXMLLimits::maxAttributes)) << true;
    QTest::newRow("one attribute more, UTF-16") << utf16(withAttributes(ZRXMLLimits::maxAttributes + 1)) << false;
    const QByteArray equals(2 * ZRXMLLimits::maxAttributes, '=');
    QTest::newRow("'=' outside attributes") << QByteArray("<!DOCTYPE a SYSTEM '" + equals + "'><?p " + equals
        + "?><a b='" + equals + "' c=\">" + equals + "\"><!--" + equals + "--><![CDATA[" + equals + "]]>" + equals
        + "</a>") << true;
    QTest::newRow("longest text") << "<a>" + longValue + "</a>" << true;
    QTest::newRow("longer text") << "<a>x" + longValue + "</a>" << false;
    QTest::newRow("longest attribute value") << "<a b='" + longValue + "'/>" << true;
    QTest::newRow("longer attribute value") << "<a b='x" + longValue + "'/>" << false;
    QTest::newRow("longer comment") << "<a><!--x" + longValue + "--></a>" << false;
    QTest::newRow("longer PI data") << "<a><?p x" + longValue + "?></a>" << false;
    QTest::newRow("entity declaration") << QByteArray("<!DOCTYPE a [<!ENTITY e 'v'>]><a>&e;</a>") << false;
    QTest::newRow("element declaration") << QByteArray("<!DOCTYPE TS [<!ELEMENT TS ANY>]><TS/>") << false;
    QTest::newRow("attribute list declaration") << QByteArray("<!DOCTYPE a [<!ATTLIST a b CDATA 'c'>]><a/>") << false;
    QTest::newRow("comment in internal subset") << QByteArray("<!DOCTYPE a [<!-- c -->]><a/>") << false;
    const QByteArray elements = QByteArray("<b></b>").repeated(ZRXMLLimits::maxNodes - 2);
    QTest::newRow("most nodes") << "<a x=''>" + elements + "</a>" << true;
    QTest::newRow("one node more") << "<a x='' y=''>" + elements + "</a>" << false;
    QTest::newRow("one node more, a comment") << "<a x=''>" + elements + "<!---->" + "</a>" << false;
    QTest::newRow("largest document") << documentOfSize(ZRXMLLimits::maxDocumentSize) << true;
    QTest::newRow("one byte larger") << documentOfSize(ZRXMLLimits::maxDocumentSize + 1) << false;
    QTest::newRow("empty") << QByteArray() << false;
    QTest::newRow("not well-formed") << QByteArray("<a><b></a>") << false;
}

void tst_XMLLoader::limits()
{
    QFETCH(QByteArray, document);
    QFETCH(bool, accepted);
    QCOMPARE(!ZRXMLLoader::loadDocumentElement(document).isNull(), accepted);

    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("document.xml"));
    QVERIFY(ZRTest::writeFile(path, document));
    QCOMPARE(!ZRXMLLoader::loadDocumentElement(QFileInfo(path)).isNull(), accepted);
}

// Destroying a DOM recurses once per level: the deepest document allowed must fit the stack of a
// thread of the editor, and a deeper one must be dropped before it grows.
void tst_XMLLoader::deepDocumentsOnSmallStack()
{
    int depth = 0;
    bool deepRefused = false;
    const std::unique_ptr<QThread> thread(QThread::create([&] {
        for (QDomElement e = ZRXMLLoader::loadDocumentElement(nested(ZRXMLLimits::maxDepth)); !e.isNull();
             e = e.firstChildElement())
            ++depth;
        deepRefused = ZRXMLLoader::loadDocumentElement(nested(130000)).isNull()
            && ZRXMLLoader::loadDocumentElement(QByteArray("<a>").repeated(130000)).isNull();
    }));
    thread->setStackSize(512 * 1024);
    thread->start();
    QVERIFY(thread->wait());
    QCOMPARE(depth, ZRXMLLimits::maxDepth);
    QVERIFY(deepRefused);
}

void tst_XMLLoader::findings_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QString>("rule");
    QTest::addColumn<int>("line");
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("text"); // part of the message or the suggestion
    QTest::newRow("unknown attribute, second line of the tag")
        << QByteArray("<products>\n  <product name='p'\n     colour='red'/>\n</products>") << "unknown-attribute" << 3
        << 6 << "colour";
    QTest::newRow("unknown element") << QByteArray("<products><product>\n  <defualts/></product></products>")
                                     << "unknown-element" << 2 << 3 << "did you mean 'defaults'?";
    QTest::newRow("malformed number") << QByteArray("<products><product safetymargin='5x'/></products>")
                                      << "not-a-number" << 1 << 20 << "'5x' is not a whole number";
    QTest::newRow("unknown key") << QByteArray(
        "<products><product><pages>cover_front, titel</pages></product></products>")
                                 << "unknown-key" << 1 << 20 << "did you mean 'title'?";
    QTest::newRow("dropped page") << QByteArray("<products><product>\n<productionnumbering>1,x</productionnumbering>"
                                                "</product></products>")
                                  << "dropped-page" << 2 << 1 << "'x'";
    QTest::newRow("not well-formed") << QByteArray("<a>\n  <b></a>") << "not-well-formed" << 2 << 10 << "mismatch";
    QTest::newRow("over a limit") << nested(ZRXMLLimits::maxDepth + 1) << "limit-exceeded" << 1
                                  << 3 * (ZRXMLLimits::maxDepth + 1) + 1 << "maxDepth";
}

void tst_XMLLoader::findings()
{
    QFETCH(QByteArray, document);
    QFETCH(QString, rule);
    QFETCH(int, line);
    QFETCH(int, column);
    QFETCH(QString, text);
    ZRXMLDiagnostics diagnostics;
    const QDomElement root = ZRXMLLoader::loadDocumentElement(document);
    const ZRProductTypeDescription description(root.firstChildElement(QStringLiteral("product")));
    const QList<ZRXMLFinding> findings = diagnostics.findings();
    QCOMPARE(findings.size(), 1);
    const ZRXMLFinding &finding = findings.first();
    QCOMPARE(finding.rule, rule);
    QCOMPARE(
        QStringLiteral("%1:%2").arg(finding.line).arg(finding.column), QStringLiteral("%1:%2").arg(line).arg(column));
    const QString said = finding.message + QLatin1String(" / ") + finding.suggestion;
    QVERIFY2(said.contains(text), qPrintable(said));
}

// The sample catalogue is what maintainers copy from: reading it must forgive nothing.
QTEST_GUILESS_MAIN(tst_XMLLoader)
#include "tst_xmlloader.moc"
