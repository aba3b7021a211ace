#pragma once
// What every subcommand's command line has in common: --help that names the
// subcommand, its options and its exit statuses, and status 2 for a bad option.

#include <QCommandLineParser>
#include <QStringList>

// Adds --help and parses. --help prints the help on stdout and ends the
// program with 0; an unknown option or a missing value is told on stderr and
// ends it with 2. exitStatus lists the statuses, one "N  meaning" a line.
void ProcessSubcommand(QCommandLineParser& parser, const QStringList& arguments, const char* name,
                       const char* exitStatus);
