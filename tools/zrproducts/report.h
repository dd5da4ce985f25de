#ifndef ZRPRODUCTS_REPORT_H
#define ZRPRODUCTS_REPORT_H

#include <QJsonArray>
#include <QJsonObject>
#include <QList>
#include <QMetaType>
#include <QString>
#include <QVariant>

#include <utility>

class QTextStream;

/**
 * An ordered set of named values (text, numbers, flags, lists of them, nested records and lists of
 * records), written as indented text for people or as a JSON object for programs. Keys are the JSON
 * names in camel case; the text labels are made from them.
 */
class Record
{
public:
    Record &add(const QString &key, const QVariant &value);
    Record &add(const QString &key, const Record &record);
    Record &add(const QString &key, const QList<Record> &records);

    bool isEmpty() const { return m_entries.isEmpty(); }
    const QList<std::pair<QString, QVariant>> &entries() const { return m_entries; }

    QJsonObject toJson() const;
    /** Writes one "Label: value" line per entry, values aligned, nested entries indented by two blanks. */
    void print(QTextStream &out, int indent = 0) const;

private:
    QList<std::pair<QString, QVariant>> m_entries;
};

Q_DECLARE_METATYPE(Record)

/** Rows under named columns: aligned columns for people, an array of objects for programs. */
class Table
{
public:
    /** @p columns holds the JSON key and the heading of each column, in order. */
    explicit Table(const QList<std::pair<QString, QString>> &columns);

    /** Adds a row with one cell per column; missing cells are empty. */
    void addRow(const QVariantList &cells);
    int rowCount() const { return int(m_rows.size()); }

    QJsonArray toJson() const;
    /** Writes the headings and the rows, columns separated by two blanks, the last one unpadded. */
    void print(QTextStream &out) const;

private:
    QList<std::pair<QString, QString>> m_columns;
    QList<QVariantList> m_rows;
};

/** How a value reads in text output: "yes"/"no" for flags, lists joined by ", ", "-" for nothing. */
QString displayText(const QVariant &value);
/** The text label of a camel-case key: "pageNumberFontSize" gives "Page number font size". */
QString labelOf(const QString &key);
/** The JSON form of a value of a Record or a Table; an invalid value gives null. */
QJsonValue toJsonValue(const QVariant &value);

#endif
