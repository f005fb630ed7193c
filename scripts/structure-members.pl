#!/usr/bin/perl
# Prints, for each "TABLE TAG" argument (a table as ExifTool's -listx names it), one line:
#   TABLE TAG LIST MEMBER:KIND ...
# where LIST is the tag's list type (Bag, Seq) or "-", and KIND is text, list, lang-alt or
# structure. Run with ExifTool's library on the path (perl -I DIR/lib).
use strict;
use warnings;
use Image::ExifTool;
use Image::ExifTool::XMP;

no strict 'refs';
for my $argument (@ARGV) {
    my ($table, $tag) = split ' ', $argument;
    my $tagTable = Image::ExifTool::GetTagTable("Image::ExifTool::$table");
    # Tables are keyed by tag ID, which may differ from the name (RegistryId for RegistryID).
    my ($info) = grep { ref $_ eq 'HASH' and ($$_{Name} || '') eq $tag } values %$tagTable;
    $info = $$tagTable{$tag} unless $info;
    die "no tag $tag in $table\n" unless ref $info eq 'HASH' and $$info{Struct};
    my $struct = $$info{Struct};
    $struct = \%{"Image::ExifTool::XMP::$struct"} unless ref $struct;
    my @members;
    for my $name (sort keys %$struct) {
        my $member = $$struct{$name};
        next if $name =~ /^[A-Z_]+$/ or ref $member ne 'HASH';
        my $kind = $$member{Struct} ? 'structure'
                 : ($$member{Writable} || '') eq 'lang-alt' ? 'lang-alt'
                 : $$member{List} ? 'list' : 'text';
        # The name ExifTool reads and writes the member by, which may differ from its ID.
        push @members, ($$member{Name} || ucfirst $name) . ":$kind";
    }
    print join(' ', $table, $tag, $$info{List} || '-', @members), "\n";
}
