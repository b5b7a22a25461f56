#!/usr/bin/perl
# SPDX-License-Identifier: MIT
# A program that means no good: hostile.pl PORT MANNER. Writes "done" when it has done its worst, and
# waits with open connections until its standard input ends.
use strict;
use warnings;
use IO::Socket::INET;
use Socket qw(SOL_SOCKET SO_LINGER);

my ($port, $manner) = @ARGV;
$SIG{PIPE} = 'IGNORE';
$| = 1;
my @open;

sub dial {
    my $socket = IO::Socket::INET->new(PeerAddr => '127.0.0.1', PeerPort => $port) or return;
    push @open, $socket;
    return $socket;
}

# reserved, type, id (64 bits), value, hash: little-endian, 18 bytes.
sub message {
    my ($type, $id, $value) = @_;
    return pack('C C V V V V', 0, $type, $id, 0, $value, 0);
}

# Writes as much as the other side takes within two seconds.
sub pour {
    my ($socket, $bytes) = @_;
    my $end = time + 2;
    $socket->blocking(0);
    while (length $bytes && time < $end) {
        my $count = syswrite $socket, $bytes;
        last if !defined $count && !$!{EAGAIN};
        if   (defined $count) { substr($bytes, 0, $count, '') }
        else                  { select undef, undef, undef, 0.01 }
    }
}

my %manners = (
    bytes => sub {
        my $socket = dial();
        syswrite $socket, $_ for split //, message(0, 7, 50) . message(2, 7, 60);
    },
    sizes => sub { pour(dial(), 'x' x $_) for 17, 19, 36; pour(dial(), "\0" x 17) },
    flood => sub { pour(dial(), join '', map { message(0, $_, 0xffffff) } 1 .. 200_000) },
    big   => sub { pour(dial(), join '', map { message(0, $_, 0xffffffff) } 1 .. 1000) },
    random => sub {
        for (1 .. 50) { pour(dial(), join '', map { chr int rand 256 } 1 .. 500) }
    },
    halfclose => sub {
        for (1 .. 20) { my $socket = dial(); pour($socket, message(0, $_, 10)); shutdown $socket, 1 }
    },
    reset => sub {
        for (1 .. 50) {
            my $socket = dial();
            pour($socket, message(0, $_, 10) . 'half');
            setsockopt $socket, SOL_SOCKET, SO_LINGER, pack('l l', 1, 0);
            close $socket;
        }
    },
    neverread => sub {
        my $socket = dial();
        pour($socket, message(0, 7, 50) . join '', map { message(2, 7, $_ % 500) } 1 .. 300_000);
    },
    crowd => sub { dial() for 1 .. 300 },
);

$manners{$manner}->();
print "done\n";
readline STDIN;
