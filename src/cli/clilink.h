#pragma once
// The link options the subcommands share (--resource, --serial, --baud) and
// the connect and disconnect around a subcommand's work.

#include <QCommandLineParser>
#include <QStringList>

struct LinkOptions {
    QStringList resources;
    QString serial;
    QString baud;
    int language = -1; // --language english|chinese; -1 keeps the stored one
};

void AddLinkOptions(QCommandLineParser& parser);
// The options as given; false (with a message on stderr) unless exactly one of
// --resource and --serial was given.
bool TakeLinkOptions(const QCommandLineParser& parser, const QString& command, LinkOptions& options);

// Connects as the program does: the transport and resource preset from the
// options, then ConnectDevice. Returns Connected.
bool OpenLink(const LinkOptions& options);
// OpenLink; when no instrument answers, says "Device not found!" in the language
// in force on stderr and closes the link again.
bool OpenLinkOrSayNotFound(const LinkOptions& options);
// Releases the instrument and closes the resource manager.
void CloseLink();
