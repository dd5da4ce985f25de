// The committed translation catalogues against the texts that lupdate finds in the sources now: every
// text needs a finished translation, and a catalogue holds no text that the sources no longer use.
#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QMap>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

namespace {
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

/** The TS document in @p path; a file that cannot be read or parsed aborts the run. */
QDomDocument readCatalogue(const QString &path)
{
    QFile file(path);
    QDomDocument document;
    QString error = QStringLiteral("cannot open");
    int line = 0;
    if (!file.open(QIODevice::ReadOnly) || !document.setContent(&file, &error, &line))
        qFatal("%s:%d: %s", qPrintable(path), line, qPrintable(error));
    return document;
}

/**
 * The messages of @p root, each as "context: source" (with the disambiguation after a "|", as lupdate keys
 * them), mapped to whether its translation is finished.
 */
QMap<QString, bool> messagesOf(const QDomElement &root)
{
    QMap<QString, bool> messages;
    for (QDomElement context = root.firstChildElement(QStringLiteral("context")); !context.isNull();
         context = context.nextSiblingElement(QStringLiteral("context"))) {
        const QString name = context.firstChildElement(QStringLiteral("name")).text();
        for (QDomElement message = context.firstChildElement(QStringLiteral("message")); !message.isNull();
             message = message.nextSiblingElement(QStringLiteral("message"))) {
            QString key = name + QLatin1String(": ") + message.firstChildElement(QStringLiteral("source")).text();
            const QString comment = message.firstChildElement(QStringLiteral("comment")).text();
            if (!comment.isEmpty())
                key += QLatin1String(" | ") + comment;
            messages.insert(key, isFinished(message.firstChildElement(QStringLiteral("translation"))));
        }
    }
    return messages;
}
} // namespace

class tst_TranslationCatalogue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void catalogue_data();
    void catalogue();

private:
    /** What lupdate finds in the sources now. */
    QMap<QString, bool> m_used;
};

void tst_TranslationCatalogue::initTestCase()
{
    QTemporaryDir directory;
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
    m_used = messagesOf(readCatalogue(fresh).documentElement());
    QVERIFY2(!m_used.isEmpty(), "lupdate found no translatable text in the sources");
}

void tst_TranslationCatalogue::catalogue_data()
{
    QTest::addColumn<QString>("path");
    const QFileInfoList files = QDir(QStringLiteral(ZR_TRANSLATIONS_SOURCE_DIR))
                                    .entryInfoList({ QStringLiteral("ZRProductProperties_*.ts") }, QDir::Files);
    QVERIFY2(!files.isEmpty(), "no catalogue in " ZR_TRANSLATIONS_SOURCE_DIR);
    for (const QFileInfo &file : files)
        QTest::newRow(qPrintable(file.fileName())) << file.filePath();
}

void tst_TranslationCatalogue::catalogue()
{
    QFETCH(QString, path);
    const QDomElement root = readCatalogue(path).documentElement();
    // lrelease takes the plural rules from the language; the source texts are German.
    const QString base = QFileInfo(path).completeBaseName();
    QCOMPARE(root.attribute(QStringLiteral("language")), base.mid(base.indexOf(QLatin1Char('_')) + 1));
    QCOMPARE(root.attribute(QStringLiteral("sourcelanguage")), QStringLiteral("de"));

    const QMap<QString, bool> messages = messagesOf(root);
    QStringList problems;
    for (auto it = m_used.cbegin(); it != m_used.cend(); ++it) {
        if (!messages.contains(it.key()))
            problems.append(QLatin1String("missing (build update_translations, translate it): ") + it.key());
        else if (!messages.value(it.key()))
            problems.append(QLatin1String("unfinished or empty: ") + it.key());
    }
    for (auto it = messages.cbegin(); it != messages.cend(); ++it) {
        if (!m_used.contains(it.key()))
            problems.append(QLatin1String("no longer used (build update_translations): ") + it.key());
    }
    QVERIFY2(problems.isEmpty(), qPrintable(problems.join(QLatin1Char('\n'))));
}

QTEST_GUILESS_MAIN(tst_TranslationCatalogue)

#include "tst_translationcatalogue.moc"
