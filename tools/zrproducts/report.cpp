#include "report.h"

#include <QStringList>
#include <QTextStream>

#include <algorithm>

namespace {
bool isRecord(const QVariant &value)
{
    return value.metaType() == QMetaType::fromType<Record>();
}

bool isRecordList(const QVariant &value)
{
    return value.metaType() == QMetaType::fromType<QList<Record>>();
}

bool isTable(const QVariant &value)
{
    return value.metaType() == QMetaType::fromType<Table>();
}

bool isNested(const QVariant &value)
{
    return isRecord(value) || isTable(value) || (isRecordList(value) && !value.value<QList<Record>>().isEmpty());
}

QString blanks(int count)
{
    return QString(count, QLatin1Char(' '));
}
} // namespace

Record &Record::add(const QString &key, const QVariant &value)
{
    m_entries.append({ key, value });
    return *this;
}

Record &Record::add(const QString &key, const Record &record)
{
    return add(key, QVariant::fromValue(record));
}

Record &Record::add(const QString &key, const QList<Record> &records)
{
    return add(key, QVariant::fromValue(records));
}

Record &Record::add(const QString &key, const Table &table)
{
    return add(key, QVariant::fromValue(table));
}

QJsonObject Record::toJson() const
{
    QJsonObject object;
    for (const auto &[key, value] : m_entries)
        object.insert(key, toJsonValue(value));
    return object;
}

void Record::print(QTextStream &out, int indent) const
{
    qsizetype width = 0;
    for (const auto &entry : m_entries)
        width = std::max(width, labelOf(entry.first).size());

    for (const auto &[key, value] : m_entries) {
        const QString label = labelOf(key) + QLatin1Char(':');
        if (isTable(value) && key != m_entries.constFirst().first)
            out << '\n';
        out << blanks(indent);
        if (!isNested(value)) {
            out << label.leftJustified(int(width) + 2) << displayText(value) << '\n';
        } else if (isRecord(value)) {
            out << label << '\n';
            value.value<Record>().print(out, indent + 2);
        } else if (isTable(value)) {
            out << label << '\n';
            value.value<Table>().print(out, indent + 2);
        } else {
            out << label << '\n';
            const QList<Record> records = value.value<QList<Record>>();
            for (const Record &record : records) {
                // The first line of an item carries its dash; the item's lines are indented past it.
                QString item;
                QTextStream itemStream(&item);
                record.print(itemStream, indent + 4);
                itemStream.flush();
                item.replace(indent + 2, 2, QStringLiteral("- "));
                out << item;
            }
        }
    }
}

Table::Table(const QList<std::pair<QString, QString>> &columns)
    : m_columns(columns)
{ }

void Table::addRow(const QVariantList &cells)
{
    QVariantList row = cells;
    while (row.size() < m_columns.size())
        row.append(QVariant());
    m_rows.append(row);
}

QJsonArray Table::toJson() const
{
    QJsonArray array;
    for (const QVariantList &row : m_rows) {
        QJsonObject object;
        for (int column = 0; column < m_columns.size(); ++column)
            object.insert(m_columns.at(column).first, toJsonValue(row.at(column)));
        array.append(object);
    }
    return array;
}

void Table::print(QTextStream &out, int indent) const
{
    QList<QStringList> lines;
    QStringList headings;
    for (const auto &column : m_columns)
        headings.append(column.second);
    lines.append(headings);
    for (const QVariantList &row : m_rows) {
        QStringList cells;
        for (const QVariant &cell : row)
            cells.append(displayText(cell));
        lines.append(cells);
    }

    QList<qsizetype> widths(m_columns.size(), 0);
    for (const QStringList &line : std::as_const(lines)) {
        for (int column = 0; column < line.size(); ++column)
            widths[column] = std::max(widths.at(column), line.at(column).size());
    }
    for (const QStringList &line : std::as_const(lines)) {
        QString text;
        for (int column = 0; column < line.size(); ++column) {
            const bool last = column == line.size() - 1;
            text += last ? line.at(column) : line.at(column).leftJustified(int(widths.at(column)) + 2);
        }
        out << blanks(indent) << text << '\n';
    }
}

QString displayText(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::UnknownType:
        return QStringLiteral("-");
    case QMetaType::Bool:
        return value.toBool() ? QStringLiteral("yes") : QStringLiteral("no");
    case QMetaType::QStringList:
    case QMetaType::QVariantList: {
        QStringList parts;
        const QVariantList items = value.toList();
        for (const QVariant &item : items)
            parts.append(displayText(item));
        return parts.isEmpty() ? QStringLiteral("-") : parts.join(QLatin1String(", "));
    }
    default:
        break;
    }
    if (isRecordList(value))
        return QStringLiteral("-");
    const QString text = value.toString();
    return text.isEmpty() ? QStringLiteral("-") : text;
}

QString labelOf(const QString &key)
{
    QString label;
    for (int i = 0; i < key.size(); ++i) {
        const QChar c = key.at(i);
        // A capital after a small letter starts a new word; runs of capitals ("3D", "URL") stay as written.
        const bool wordStart = i > 0 && c.isUpper() && key.at(i - 1).isLower();
        const bool acronym = i + 1 < key.size() && key.at(i + 1).isUpper();
        if (wordStart)
            label += QLatin1Char(' ');
        label += wordStart && !acronym ? c.toLower() : c;
    }
    if (!label.isEmpty())
        label[0] = label.at(0).toUpper();
    return label;
}

QJsonValue toJsonValue(const QVariant &value)
{
    if (isRecord(value))
        return value.value<Record>().toJson();
    if (isTable(value))
        return value.value<Table>().toJson();
    if (isRecordList(value)) {
        QJsonArray array;
        const QList<Record> records = value.value<QList<Record>>();
        for (const Record &record : records)
            array.append(record.toJson());
        return array;
    }
    switch (value.typeId()) {
    case QMetaType::UnknownType:
        return QJsonValue();
    case QMetaType::QStringList:
    case QMetaType::QVariantList: {
        QJsonArray array;
        const QVariantList items = value.toList();
        for (const QVariant &item : items)
            array.append(toJsonValue(item));
        return array;
    }
    default:
        return QJsonValue::fromVariant(value);
    }
}

Report::Report(const Record &record, const TextForm &text)
    : m_model(QVariant::fromValue(record))
    , m_text(text)
{ }

Report::Report(const Table &table)
    : m_model(QVariant::fromValue(table))
{ }

Report::Report(const RecordMaker &record, const TextForm &text)
    : m_makeRecord(record)
    , m_text(text)
{ }

QVariant Report::model() const
{
    return m_makeRecord ? QVariant::fromValue(m_makeRecord()) : m_model;
}

QJsonDocument Report::toJson() const
{
    const QJsonValue json = toJsonValue(model());
    return json.isArray() ? QJsonDocument(json.toArray()) : QJsonDocument(json.toObject());
}

void Report::print(QTextStream &out) const
{
    if (m_text)
        m_text(out);
    else if (const QVariant model = this->model(); isTable(model))
        model.value<Table>().print(out);
    else
        model.value<Record>().print(out);
}
