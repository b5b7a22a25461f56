#!/usr/bin/env perl
# SPDX-License-Identifier: MIT
# Prepares a header for the pages of the API. One comment may stand above several declarations, up
# to the next blank line: each of them gets it. What says nothing new is left out where it has no
# comment of its own: overrides, destructors, copies, comparisons, constructors with a parent alone.
# Lines stay where they are, so that warnings name the right ones.
use strict;
use warnings;

my $isObvious = qr{\boverride\b
                  |^\s*(virtual\ )?~
                  |\boperator(=|==)\(
                  |(\w+)\(const\ \g{-1}&
                  |^\s*explicit\ \w+\((QWidget|QObject)\*\ parent(\ =\ nullptr)?\)}x;
my @comment;              # the last one
my $commentDepth = 0;     # where it stands, in braces
my $isFresh = 0;          # whether it stands right above
my $declaration = '';     # the lines of one so far
my $declarationDepth = 0; # where it begins
my $depth = 0;

sub finish
{
    my $text = $declaration;
    $declaration = '';
    my $isOwn = $isFresh;
    $isFresh = 0;
    return print $text if $isOwn || $text =~ /^\s*(#|[{}]|Q_|using \w+::|friend |extern )/;
    return print "\n" x ($text =~ tr/\n//) if $text =~ $isObvious && $text =~ /[;}]\s*$/;
    print '/** ', join(' ', map { s{^\s*///\s?}{}r =~ s/\n//r } @comment), ' */ '
        if @comment && $declarationDepth == $commentDepth && $text !~ m{///<};
    print $text;
}

while (my $line = <>) {
    if ($declaration eq '' && $line =~ m{^\s*///(?!<)}) {
        @comment = () unless $isFresh;
        push @comment, $line;
        $commentDepth = $depth;
        $isFresh = 1;
        print $line;
    } elsif ($declaration eq '' &&
             $line =~ m{^\s*$|^\s*//|^\s*(public|protected|private|Q_SIGNALS)\b.*:}) {
        @comment = ();
        $isFresh = 0;
        print $line;
    } else {
        $declarationDepth = $depth if $declaration eq '';
        $declaration .= $line;
        (my $code = $line) =~ s{//.*}{};
        $depth += ($code =~ tr/{//) - ($code =~ tr/}//);
        my $isOpen = ($declaration =~ tr/(//) > ($declaration =~ tr/)//);
        finish() if !$isOpen && ($code =~ /[;{},]\s*$|^\s*#|^\s*$/ ||
                                 $declaration =~ /^\s*[A-Z_]{2,}(\(.*\))?\s*$/s);
    }
}
finish() if $declaration ne '';
