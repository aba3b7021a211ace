#!/bin/sh
# Writes the manual page of selvane-cli from its own help texts, gzipped:
# makeman.sh SELVANE_CLI OUT.1.gz
set -eu
cli=$1
out=$2
# Help text as preformatted roff: backslashes escaped, no line taken for a request.
roff() {
    echo '.nf'
    sed -e 's/\\/\\e/g' -e "s/^\([.']\)/\\\\\&\1/"
    echo '.fi'
}
version=$("$cli" --version | sed 's/^selvane-cli //')
{
    echo ".TH SELVANE-CLI 1 \"\" \"selvane-cli $version\" \"User Commands\""
    echo '.SH NAME'
    echo 'selvane-cli \- Selvane without windows: the program'"'"'s routines for scripts and test benches'
    echo '.SH SYNOPSIS'
    echo '.B selvane-cli'
    echo '.I SUBCOMMAND'
    echo '[options]'
    echo '.SH DESCRIPTION'
    "$cli" --help | roff
    echo '.SH SUBCOMMANDS'
    for subcommand in $("$cli" --help | sed -n '/^Subcommands/,/^$/ s/^  \([a-z]\+\)  \+[A-Z].*/\1/p'); do
        echo ".SS $subcommand"
        "$cli" "$subcommand" --help | roff
    done
    echo '.SH FILES'
    echo '.TP'
    echo '.I ~/.config/selvane/visa.conf'
    echo 'Network resources that the VISA layer lists, one a line.'
} | gzip -9n >"$out"
