#!/usr/bin/perl
# SPDX-License-Identifier: GPL-3.0-or-later
# Shows messages to SpamAssassin without its tests that need a network and prints for each one the names of the rules that
# hit, with blanks between them, on a line.
#
#   check_spam.pl MESSAGES WORK_FOLDER
#
# MESSAGES contains the messages one after the other, each after a line with its length.
use strict;
use warnings;
use Mail::SpamAssassin;

my ($messages, $folder) = @ARGV;
my $checker = Mail::SpamAssassin->new({
    local_tests_only => 1,
    dont_copy_prefs  => 1,
    userprefs_filename => "$folder/none",
    userstate_dir    => $folder,
    post_config_text => "use_bayes 0\nuse_learner 0\nuse_auto_welcomelist 0\n",
});
open(my $source, "<:raw", $messages) or die "$messages: $!";
while (my $length = <$source>) {
    read($source, my $data, $length) == $length or die "cut file";
    my $mail = $checker->parse($data);
    my $status = $checker->check($mail);
    print join(" ", sort split(/,/, $status->get_names_of_tests_hit())), "\n";
    $status->finish();
    $mail->finish();
}
