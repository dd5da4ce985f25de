#ifndef ZRPRODUCTS_REPORT_H
#define ZRPRODUCTS_REPORT_H

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QList>
#include <QMetaType>
#include <QString>
#include <QVariant>

#include <functional>
#include <utility>

class QTextStream;
class Table;

/**
 * An ordered set of named values (text, numbers, flags, lists of them, nested records, lists of
 * records and tables), written as indented text for people or as a JSON object for programs. Keys are
 * the JSON names in camel case; the text labels are made from them.
 */
class Record
{
public:
    Record &add(const QString &key, const QVariant &value);
    Record &add(const QString &key, const Record &record);
    Record &add(const QString &key, const QList<Record> &records);
    Record &add(const QString &key, const Table &table);

    bool isEmpty() const { return m_entries.isEmpty(); }
    const QList<std::pair<QString, QVariant>> &entries() const { return m_entries; }

    QJsonObject toJson() const;
    /**
     * Writes one "Label: value" line per entry, values aligned, nested entries indented by two blanks;
     * a table follows its label line, after a blank line unless it is the first entry.
     */
    void print(QTextStream &out, int indent = 0) const;

private:
    QList<std::pair<QString, QVariant>> m_entries;
};

/** Rows under named columns: aligned columns for people, an array of objects for programs. */
class Table
{
public:
    Table() = default;
    /** @p columns holds the JSON key and the heading of each column, in order. */
    explicit Table(const QList<std::pair<QString, QString>> &columns);

    /** Adds a row with one cell per column; missing cells are empty. */
    void addRow(const QVariantList &cells);

    QJsonArray toJson() const;
    /** Writes the headings and the rows, columns separated by two blanks, the last one unpadded. */
    void print(QTextStream &out, int indent = 0) const;

private:
    QList<std::pair<QString, QString>> m_columns;
    QList<QVariantList> m_rows;
};

Q_DECLARE_METATYPE(Record)
Q_DECLARE_METATYPE(Table)

/**
 * What a command prints: a Record or a Table, written in the one form asked for, a JSON document for
 * programs or text for people. The text is the model's own unless the command gives a text form of
 * its own, made from the same data.
 */
class Report
{
public:
    using TextForm = std::function<void(QTextStream &out)>;
    using RecordMaker = std::function<Record()>;

    Report() = default;
    explicit Report(const Record &record, const TextForm &text = TextForm());
    explicit Report(const Table &table);
    /** A report whose record is made only when it is written as JSON; @p text writes it for people. */
    Report(const RecordMaker &record, const TextForm &text);

    QJsonDocument toJson() const;
    void print(QTextStream &out) const;

private:
    QVariant model() const;

    QVariant m_model;
    RecordMaker m_makeRecord;
    TextForm m_text;
};

/** How a value reads in text output: "yes"/"no" for flags, lists joined by ", ", "-" for nothing. */
QString displayText(const QVariant &value);
/** The text label of a camel-case key: "pageNumberFontSize" gives "Page number font size". */
QString labelOf(const QString &key);
/** The JSON form of a value of a Record or a Table; an invalid value gives null. */
QJsonValue toJsonValue(const QVariant &value);

#endif
