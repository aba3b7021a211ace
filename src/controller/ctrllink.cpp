#include "controller/ctrllink.h"

#include "link/linkcommands.h"
#include "text/valuetext.h"

QString AskReply(const QString& query)
{
    return StripAtLineFeed(AskCmd(query));
}

void InstallLevelQuery()
{
    SetLevelQuery([](const QString& query) { return AskCmd(query); });
}
