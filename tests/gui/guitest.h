#pragma once
// Small helpers of the window tests.

#include <QFile>
#include <QStringList>
#include <gtest/gtest.h>

// Long expectations kept as text beside the tests: data/NAME, one row a line,
// fields split by tabs, '#' lines and blank lines left out.
inline QList<QStringList> ExpectationRows(const char* name)
{
    QFile file(QStringLiteral(SELVANE_TEST_DATA "/gui/data/") + QString::fromLatin1(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    QList<QStringList> rows;
    for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n'))
        if (!line.isEmpty() && !line.startsWith(u'#')) rows.append(line.split(u'\t'));
    return rows;
}

// The child of owner with this object name, failing the test when there is
// none.
template <typename T> T* Named(const QObject* owner, const QString& name)
{
    T* found = owner->findChild<T*>(name);
    EXPECT_NE(found, nullptr) << name.toStdString();
    return found;
}
