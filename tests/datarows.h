#pragma once
// The rows of a data file beside the tests (long tables and expectations are
// kept as data, not code): blank-separated fields; a quoted field keeps its
// blanks and takes \n, \r and \t escapes; "#" lines and blank lines are left out.

#include <QFile>
#include <QStringList>
#include <gtest/gtest.h>
#include <vector>

inline QStringList DataFields(const QString& line)
{
    QStringList fields;
    for (qsizetype i = 0; i < line.size();) {
        if (line[i].isSpace()) {
            ++i;
            continue;
        }
        QString field;
        if (line[i] == u'"') {
            for (++i; i < line.size() && line[i] != u'"'; ++i) {
                if (line[i] != u'\\' || i + 1 == line.size()) {
                    field += line[i];
                    continue;
                }
                const QChar next = line[++i];
                field += next == u'n'   ? QChar(u'\n')
                         : next == u'r' ? QChar(u'\r')
                         : next == u't' ? QChar(u'\t')
                                        : next;
            }
            ++i;
        } else {
            while (i < line.size() && !line[i].isSpace())
                field += line[i++];
        }
        fields.append(field);
    }
    return fields;
}

// `path` is relative to the tests folder, e.g. "wave/data/clamp.txt".
inline std::vector<QStringList> DataRows(const char* path)
{
    QFile file(QStringLiteral(SELVANE_TEST_DATA "/") + QLatin1String(path));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly | QIODevice::Text)) << path;
    std::vector<QStringList> rows;
    for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n'))
        if (!line.startsWith(u'#') && !line.trimmed().isEmpty()) rows.push_back(DataFields(line));
    return rows;
}
