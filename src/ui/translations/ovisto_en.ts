<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>BatchWatch</name>
    <message numerus="yes">
        <source>%Ln changed</source>
        <translation>
            <numerusform>%Ln changed</numerusform>
            <numerusform>%Ln changed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln unchanged</source>
        <translation>
            <numerusform>%Ln unchanged</numerusform>
            <numerusform>%Ln unchanged</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln failed</source>
        <translation>
            <numerusform>%Ln failed</numerusform>
            <numerusform>%Ln failed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln not reached</source>
        <translation>
            <numerusform>%Ln not reached</numerusform>
            <numerusform>%Ln not reached</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FailureMessages</name>
    <message numerus="yes">
        <source>and %Ln more</source>
        <translation>
            <numerusform>and %Ln more</numerusform>
            <numerusform>and %Ln more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Other folders that could not be read (%Ln):</source>
        <translation>
            <numerusform>Other folders that could not be read (%Ln):</numerusform>
            <numerusform>Other folders that could not be read (%Ln):</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message numerus="yes">
        <source>%1 nodes of the file have this path.</source>
        <translation>
            <numerusform>%1 node of the file has this path.</numerusform>
            <numerusform>%1 nodes of the file have this path.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The segment would have %1 bytes, but its length says %2</source>
        <translation>
            <numerusform>The segment would have %1 byte, but its length says %2</numerusform>
            <numerusform>The segment would have %1 bytes, but its length says %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The value would have %1 bytes instead of %2</source>
        <translation>
            <numerusform>The value would have %1 byte instead of %2</numerusform>
            <numerusform>The value would have %1 bytes instead of %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The Exif segment would be %1 bytes longer than the 65,535 that it has room for; rebuilding (&quot;Keep Untouched Data?&quot; off, --rebuild) may make it shorter</source>
        <translation>
            <numerusform>The Exif segment would be %1 byte longer than the 65,535 that it has room for; rebuilding (&quot;Keep Untouched Data?&quot; off, --rebuild) may make it shorter</numerusform>
            <numerusform>The Exif segment would be %1 bytes longer than the 65,535 that it has room for; rebuilding (&quot;Keep Untouched Data?&quot; off, --rebuild) may make it shorter</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The file would have %1 segments instead of %2</source>
        <translation>
            <numerusform>The file would have %1 segment instead of %2</numerusform>
            <numerusform>The file would have %1 segments instead of %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The file has %1 segments instead of %2</source>
        <translation>
            <numerusform>The file has %1 segment instead of %2</numerusform>
            <numerusform>The file has %1 segments instead of %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 values changed, %2 unchanged, picture identical.</source>
        <translation>
            <numerusform>%1 value changed, %2 unchanged, picture identical.</numerusform>
            <numerusform>%1 values changed, %2 unchanged, picture identical.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, and %2 more</source>
        <translation>
            <numerusform>%1, and %2 more</numerusform>
            <numerusform>%1, and %2 more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 bytes, %3</source>
        <translation>
            <numerusform>%1, %2 byte, %3</numerusform>
            <numerusform>%1, %2 bytes, %3</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 bytes, %3; the program cannot look into it</source>
        <translation>
            <numerusform>%1, %2 byte, %3; the program cannot look into it</numerusform>
            <numerusform>%1, %2 bytes, %3; the program cannot look into it</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 bytes</source>
        <translation>
            <numerusform>%1 byte</numerusform>
            <numerusform>%1 bytes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files could not be checked. The first: %2</source>
        <translation>
            <numerusform>%1 file could not be checked. The first: %2</numerusform>
            <numerusform>%1 files could not be checked. The first: %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The search ended early, because %1 files could not be checked. The first: %2</source>
        <translation>
            <numerusform>The search ended early, because %1 file could not be checked. The first: %2</numerusform>
            <numerusform>The search ended early, because %1 files could not be checked. The first: %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message numerus="yes">
        <source>%n photographs</source>
        <translation>
            <numerusform>%n photograph</numerusform>
            <numerusform>%n photographs</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ovisto::AboutForm</name>
    <message numerus="yes">
        <source>Processor: %1, %Ln cores</source>
        <translation>
            <numerusform>Processor: %1, %Ln core</numerusform>
            <numerusform>Processor: %1, %Ln cores</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ovisto::BatchForm</name>
    <message numerus="yes">
        <source>The list has %Ln files.</source>
        <translation>
            <numerusform>The list has %Ln file.</numerusform>
            <numerusform>The list has %Ln files.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ovisto::ListActions</name>
    <message numerus="yes">
        <source>Lost something in %L1 of %Ln files, as &quot;Keep Untouched Data?&quot; is off. The originals are kept as NAME.original.</source>
        <translation>
            <numerusform>Lost something in %L1 of %Ln file, as &quot;Keep Untouched Data?&quot; is off. The originals are kept as NAME.original.</numerusform>
            <numerusform>Lost something in %L1 of %Ln files, as &quot;Keep Untouched Data?&quot; is off. The originals are kept as NAME.original.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ovisto::PropertySheet</name>
    <message numerus="yes">
        <source>%1 bytes</source>
        <translation>
            <numerusform>%1 byte</numerusform>
            <numerusform>%1 bytes</numerusform>
        </translation>
    </message>
</context>
</TS>
