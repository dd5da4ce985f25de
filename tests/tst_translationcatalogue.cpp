// The committed translation catalogues against the texts that lupdate finds in the sources now: every
// text needs a finished translation, and a catalogue holds no text that the sources no longer use.
#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

namespace {
/** One text of a catalogue, keyed by context, source and disambiguation as lupdate keys it. */
struct Message
{
    QString context;
    QString source;
    bool finished = false;
};
using Messages = QMap<QString, Message>;

/** A translation is finished when lupdate has not marked it and no (plural) form of it is empty. */
bool isFinished(const QDomElement &translation)
{
    if (translation.isNull() || translation.hasAttribute(QStringLiteral("type")))
        return false;
    const QDomElement firstForm = translation.firstChildElement(QStringLiteral("numerusform"));
    if (firstForm.isNull())
        return !translation.text().isEmpty();
    for (QDomElement form = firstForm; !form.isNull(); form = form.nextSiblingElement(QStringLiteral("numerusform"))) {
        if (form.text().isEmpty())
            return false;
    }
    return true;
}

struct Catalogue
{
    QString language;
    QString sourceLanguage;
    Messages messages;
};

bool readCatalogue(const QString &path, Catalogue *catalogue, QString *error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = QStringLiteral("cannot read %1: %2").arg(path, file.errorString());
        return false;
    }
    QDomDocument document;
    QString message;
    int line = 0;
    if (!document.setContent(&file, &message, &line)) {
        *error = QStringLiteral("%1:%2: %3").arg(path).arg(line).arg(message);
        return false;
    }
    const QDomElement root = document.documentElement();
    catalogue->language = root.attribute(QStringLiteral("language"));
    catalogue->sourceLanguage = root.attribute(QStringLiteral("sourcelanguage"));
    for (QDomElement context = root.firstChildElement(QStringLiteral("context")); !context.isNull();
         context = context.nextSiblingElement(QStringLiteral("context"))) {
        const QString name = context.firstChildElement(QStringLiteral("name")).text();
        for (QDomElement message = context.firstChildElement(QStringLiteral("message")); !message.isNull();
             message = message.nextSiblingElement(QStringLiteral("message"))) {
            const QString source = message.firstChildElement(QStringLiteral("source")).text();
            const QString comment = message.firstChildElement(QStringLiteral("comment")).text();
            const QString key = name + QLatin1Char('\n') + source + QLatin1Char('\n') + comment;
            catalogue->messages.insert(
                key, { name, source, isFinished(message.firstChildElement(QStringLiteral("translation"))) });
        }
    }
    return true;
}

/** "ZRProductProperties_en.ts" -> "en". */
QString languageOfFile(const QString &path)
{
    const QString base = QFileInfo(path).completeBaseName();
    return base.mid(base.indexOf(QLatin1Char('_')) + 1);
}

/** One row per message: the catalogue's file name and the message's key. */
void addRows(const Messages &messages, const QString &catalogue)
{
    for (auto it = messages.cbegin(); it != messages.cend(); ++it)
        QTest::addRow("%s %s: %s", qPrintable(catalogue), qPrintable(it->context), qPrintable(it->source))
            << catalogue << it.key();
}
} // namespace

class tst_TranslationCatalogue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void catalogueLanguage_data();
    void catalogueLanguage();
    void everyTextIsTranslated_data();
    void everyTextIsTranslated();
    void everyTranslationIsUsed_data();
    void everyTranslationIsUsed();

private:
    /** What lupdate finds in the sources now. */
    Messages m_used;
    /** The committed catalogues by file name, every ZRProductProperties_<language>.ts. */
    QMap<QString, Catalogue> m_catalogues;
};

void tst_TranslationCatalogue::initTestCase()
{
    QTemporaryDir directory;
    QVERIFY(directory.isValid());
    const QString fresh = directory.filePath(QStringLiteral("fresh.ts"));
    QProcess lupdate;
    lupdate.start(QStringLiteral(ZR_LUPDATE),
        { QLatin1Char('@') + QStringLiteral(ZR_TRANSLATION_SOURCES_LIST), QStringLiteral("-ts"), fresh });
    QVERIFY(lupdate.waitForFinished(120000));
    const QString errors = QString::fromLocal8Bit(lupdate.readAllStandardError());
    QVERIFY2(lupdate.exitStatus() == QProcess::NormalExit && lupdate.exitCode() == 0, qPrintable(errors));
    // lupdate reports calls it cannot read ("tr() cannot be called without context"): texts that no
    // catalogue would ever hold.
    QVERIFY2(errors.trimmed().isEmpty(), qPrintable(errors));

    Catalogue used;
    QString error;
    QVERIFY2(readCatalogue(fresh, &used, &error), qPrintable(error));
    m_used = used.messages;
    QVERIFY2(!m_used.isEmpty(), "lupdate found no translatable text in the sources");

    const QFileInfoList files = QDir(QStringLiteral(ZR_TRANSLATIONS_SOURCE_DIR))
                                    .entryInfoList({ QStringLiteral("ZRProductProperties_*.ts") }, QDir::Files);
    QVERIFY2(!files.isEmpty(), "no catalogue in " ZR_TRANSLATIONS_SOURCE_DIR);
    for (const QFileInfo &file : files) {
        Catalogue catalogue;
        QVERIFY2(readCatalogue(file.filePath(), &catalogue, &error), qPrintable(error));
        m_catalogues.insert(file.fileName(), catalogue);
    }
}

void tst_TranslationCatalogue::catalogueLanguage_data()
{
    QTest::addColumn<QString>("catalogue");
    for (auto it = m_catalogues.cbegin(); it != m_catalogues.cend(); ++it)
        QTest::newRow(qPrintable(it.key())) << it.key();
}

void tst_TranslationCatalogue::catalogueLanguage()
{
    QFETCH(QString, catalogue);

    // lrelease takes the plural rules from the language; the source texts are German.
    QCOMPARE(m_catalogues.value(catalogue).language, languageOfFile(catalogue));
    QCOMPARE(m_catalogues.value(catalogue).sourceLanguage, QStringLiteral("de"));
}

void tst_TranslationCatalogue::everyTextIsTranslated_data()
{
    QTest::addColumn<QString>("catalogue");
    QTest::addColumn<QString>("text");
    for (auto it = m_catalogues.cbegin(); it != m_catalogues.cend(); ++it)
        addRows(m_used, it.key());
}

void tst_TranslationCatalogue::everyTextIsTranslated()
{
    QFETCH(QString, catalogue);
    QFETCH(QString, text);

    const Messages messages = m_catalogues.value(catalogue).messages;
    QVERIFY2(messages.contains(text), "missing from the catalogue: build update_translations and translate it");
    QVERIFY2(messages.value(text).finished, "the translation is unfinished or empty");
}

void tst_TranslationCatalogue::everyTranslationIsUsed_data()
{
    QTest::addColumn<QString>("catalogue");
    QTest::addColumn<QString>("text");
    for (auto it = m_catalogues.cbegin(); it != m_catalogues.cend(); ++it)
        addRows(it.value().messages, it.key());
}

void tst_TranslationCatalogue::everyTranslationIsUsed()
{
    QFETCH(QString, text);

    QVERIFY2(m_used.contains(text), "the sources no longer use this text: build update_translations");
}

QTEST_GUILESS_MAIN(tst_TranslationCatalogue)

#include "tst_translationcatalogue.moc"
