#ifndef ZRTESTSUPPORT_H
#define ZRTESTSUPPORT_H

#include <QByteArray>
#include <QDir>
#include <QDomDocument>
#include <QDomElement>
#include <QFile>
#include <QFileInfo>
#include <QList>
#include <QMutex>
#include <QMutexLocker>
#include <QString>
#include <QStringList>

#include <algorithm>

/** Fixture helpers shared by the tests. */
namespace ZRTest {

/**
 * The document element of @p xml. Its document is kept alive until the process ends, so the element keeps its
 * parent and owner document. Empty text gives a null element; malformed text aborts the test run, so a typo in a
 * fixture cannot pass for a missing element.
 */
inline QDomElement parseElement(const QString &xml)
{
    if (xml.isEmpty())
        return QDomElement();
    QDomDocument document;
    QString message;
    int line = 0;
    int column = 0;
    if (!document.setContent(xml, &message, &line, &column))
        qFatal("malformed test XML (%d:%d: %s): %s", line, column, qPrintable(message), qPrintable(xml));
    static QMutex mutex;
    static QList<QDomDocument> documents;
    const QMutexLocker locker(&mutex);
    documents.append(document);
    return document.documentElement();
}

/** Writes @p content to @p path, creating missing parent directories; false if any step fails. */
inline bool writeFile(const QString &path, const QByteArray &content)
{
    if (!QDir().mkpath(QFileInfo(path).absolutePath()))
        return false;
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

/** Writes @p content to the file @p name (which may contain subdirectories) below @p dir. */
inline bool writeFile(const QString &dir, const QString &name, const QByteArray &content)
{
    return writeFile(QDir(dir).filePath(name), content);
}

/** The `value()` of every item of @p items as int, in their order. */
template<typename Container> QList<int> values(const Container &items)
{
    QList<int> result;
    for (const auto &item : items)
        result.append(int(item.value()));
    return result;
}

/** The `value()` of every item of @p items as int, in ascending order, for comparing unordered sets. */
template<typename Container> QList<int> sortedValues(const Container &items)
{
    QList<int> sorted = values(items);
    std::sort(sorted.begin(), sorted.end());
    return sorted;
}

/** The `name()` of every item of @p items, sorted, for comparing unordered collections. */
template<typename Container> QStringList sortedNames(const Container &items)
{
    QStringList names;
    for (const auto &item : items)
        names.append(item.name());
    names.sort();
    return names;
}

} // namespace ZRTest

#endif // ZRTESTSUPPORT_H
