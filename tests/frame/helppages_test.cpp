// The manuals under help/: every link and picture of every page leads to a file
// (and an anchor) that is there, and both languages have the same chapters and
// the same pictures.
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QUrl>
#include <gtest/gtest.h>

namespace {

const QString helpRoot = QStringLiteral(SELVANE_TEST_DATA "/../help");

QString readText(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList filesUnder(const QString& folder, const QStringList& patterns)
{
    QStringList found;
    QDirIterator it(folder, patterns, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext())
        found << QDir(folder).relativeFilePath(it.next());
    found.sort();
    return found;
}

TEST(HelpPages, EveryLinkAndPictureResolves)
{
    const QStringList pages = filesUnder(helpRoot, {QStringLiteral("*.html")});
    ASSERT_GE(pages.size(), 4);
    static const QRegularExpression link(QStringLiteral(R"re((?:href|src)\s*=\s*"([^"]*)")re"));
    int checked = 0;
    for (const QString& page : pages) {
        const QString path = QDir(helpRoot).filePath(page);
        const QString text = readText(path);
        for (auto it = link.globalMatch(text); it.hasNext();) {
            const QUrl url(it.next().captured(1));
            if (!url.scheme().isEmpty()) continue; // the web, mail
            const QString target =
                url.path().isEmpty() ? path : QDir::cleanPath(QFileInfo(path).dir().filePath(url.path()));
            EXPECT_TRUE(QFileInfo::exists(target)) << qPrintable(page) << ": " << qPrintable(url.toString());
            if (url.hasFragment()) {
                EXPECT_TRUE(readText(target).contains(QStringLiteral("id=\"%1\"").arg(url.fragment())))
                    << qPrintable(page) << ": " << qPrintable(url.toString());
            }
            ++checked;
        }
    }
    EXPECT_GT(checked, 50);
}

TEST(HelpPages, BothLanguagesHaveTheSameChaptersAndPictures)
{
    for (const QString& kind : {QStringLiteral("manual/%1"), QStringLiteral("manual/images/%1")}) {
        const QStringList english = filesUnder(QDir(helpRoot).filePath(kind.arg("en")), {"*.html", "*.png"});
        EXPECT_FALSE(english.isEmpty()) << qPrintable(kind.arg("en"));
        EXPECT_EQ(english, filesUnder(QDir(helpRoot).filePath(kind.arg("zh")), {"*.html", "*.png"}))
            << qPrintable(kind.arg("zh"));
    }
}

} // namespace
