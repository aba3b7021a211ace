#include "cli/clilink.h"

#include "link/connection.h"
#include "link/linkstate.h"
#include "link/visaopen.h"
#include "text/language.h"
#include "text/messages.h"
#include "visa/visaconfig.h"

#include <cstdio>
#include <string>
#include <vector>

namespace {

void presetTransport(const LinkOptions& options)
{
    if (!options.serial.isEmpty()) {
        TransportType = TransportRs232;
        SerialDevice = options.serial;
        BaudRate = options.baud;
        return;
    }
    std::vector<std::string> listed;
    for (const QString& name : options.resources)
        listed.push_back(name.toStdString());
    selvaneVisaSetConfiguredResources(listed);
    TransportType = TransportVisa;
    ResourceName = options.resources.first();
    ResourceChosen = true;
}

} // namespace

void AddLinkOptions(QCommandLineParser& parser)
{
    parser.addOption(
        {"resource", "VISA resource to open; repeated: the first is opened, all are listed.", "name"});
    parser.addOption({"serial", "Serial device to open instead (a tty or pseudo-terminal).", "path"});
    parser.addOption({"baud", "Baud rate of the serial device.", "rate", "9600"});
    parser.addOption({"language", "Language of texts and value words: english or chinese.", "language"});
}

bool TakeLinkOptions(const QCommandLineParser& parser, const QString& command, LinkOptions& options)
{
    options = {parser.values("resource"), parser.value("serial"), parser.value("baud")};
    const QString language = parser.value("language");
    if (language == QLatin1String("english"))
        options.language = LanguageEnglish;
    else if (language == QLatin1String("chinese"))
        options.language = LanguageChinese;
    else if (!language.isEmpty()) {
        std::fprintf(stderr, "%s: --language is english or chinese\n", qPrintable(command));
        return false;
    }
    if (options.resources.isEmpty() != options.serial.isEmpty()) return true;
    std::fprintf(stderr, "%s: give either --resource or --serial\n", qPrintable(command));
    return false;
}

bool OpenLink(const LinkOptions& options)
{
    LoadLanguageSetting();
    if (options.language >= 0) Language = options.language;
    LoadMessages();
    presetTransport(options);
    OpenVisaRM();
    ConnectDevice();
    return Connected;
}

bool OpenLinkOrSayNotFound(const LinkOptions& options)
{
    if (OpenLink(options)) return true;
    std::fprintf(stderr, "%s\n", qPrintable(MsgDeviceNotFound));
    CloseLink();
    return false;
}

void CloseLink()
{
    DisconnectDevice();
    CloseVisaRM();
}
