<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>AboutForm</name>
    <message>
        <source>About Ovisto</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows what a JPEG photograph tells about itself, and lets you edit it: titles, keywords, dates, the camera&apos;s notes. The picture itself is never compressed again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;System Information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show what is known about this computer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Advice</name>
    <message>
        <source>Change the value, or delete the property.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close other programs, and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type a value of the data type that is shown below it: a whole number, or a fraction such as 1/125. Several are separated by commas.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check whether the file was moved, renamed or deleted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy what you can to another disk, and work there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Free some space on the disk, and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check the permissions of the file and of its folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check that the disk or card is connected, and that the folder was not renamed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is not a JPEG photograph, or it is damaged. If it was one, restore it from your backup.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BatchForm</name>
    <message>
        <source>Batch Action</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Carry out the following action on all selected images in the Files Found List...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Node</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Node</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Set to value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete Node</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;tart</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BatchResultForm</name>
    <message>
        <source>Batch Result</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files and results</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keep only the failed in the list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BatchWatch</name>
    <message>
        <source>Go on with the other files? Those that fail are listed at the end.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Go On</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%Ln changed</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln unchanged</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln failed</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln not reached</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BrowserCapForm</name>
    <message>
        <source>Find Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folders / Directories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder to scan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go to the folder above</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go to the home folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filename Pattern</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>list of file extensions separated by semicolon;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan Subfolders as well?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan Subfolders of selected folder?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add files found to list?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add to list of files found (or clear)?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Content Filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Containing words</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Words to search for, or regular expression</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(separate words with commas)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Must find ALL words?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File must have all words, or any of them?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find whole words only?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Look for whole words only or part of word</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Treat the text above as a Regular Expression</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Regular expression</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Or, if you know how to write regular expressions, then enter your RegExp above and tick this box.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search shown values, too</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Also look for the text above in the values as the property tree shows them, such as &quot;turned right&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Select Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ControlForm</name>
    <message>
        <source>Find Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select &amp; scan a folder for image files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List of images found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Images found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save &amp; show previous image in list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previous image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save &amp; show next image in list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;lide Show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show files listed in a slide-show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Batch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change all files listed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your list of favourite keywords</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Favourite keywords</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keywords</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load a different keyword list from a file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drop photographs or folders of them here, or choose Find Files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left click to open, right click for properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OS Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Comments</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subject:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subject</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ditto</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repeat from previous image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save changes made to this file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo ALL changes made to this file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This file has changes that are not saved yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changes not saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File Property Tree</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Property</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current Node</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name of current file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tag number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show as Hex?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Translate to hexadecimal code?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value of property selected in tree</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thumbnail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Values that this property can have, and what they mean</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Known values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the value means</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Data type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add Node</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add new node</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete Node</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CAUTION: use at own risk!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save &amp;XML</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;What Does It Tell?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lists what the photograph tells of people and places, and deletes what you select.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Generate Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep Maker Notes?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep Thumbnails?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep Non-standard Exif?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep Untouched Data?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saving changes only what you edited and leaves the rest of the file as it is. Counts from the next file opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read Everything?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows texts in any language and the place, all as it was written. Counts from the next file opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Technical Data?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OS &amp;Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contents</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DataType</name>
    <message>
        <source>Byte</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>String</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Short</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Long</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rational</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signed Byte</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undefined</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signed Short</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signed Long</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Signed Rational</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unicode String</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Float</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Double</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Directory Position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UTF-8 String</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Required</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Protected</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FailureMessages</name>
    <message>
        <source>The report does not cover these files:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no such file or folder:</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>and %Ln more</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Other folders that could not be read (%Ln):</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>HelpContents</name>
    <message>
        <source>Unable to display Help Contents. There is no Help associated with this project.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No program was found that shows web pages.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LeftOutLine</name>
    <message>
        <source>maker notes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>thumbnails</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>non-standard Exif</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>what is not shown</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1<byte value="xd"/>
%2 : %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid procedure call or argument</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overflow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type mismatch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File not found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device I/O error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Path/File access error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Path not found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Object not set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unexpected error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is a folder, not a file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is not a folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is not a regular file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no folder %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Interrupted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not a regular expression: %1: %2 (at character %3)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The regular expression runs too long: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The words &quot;%1&quot; cannot be searched for: %2. Characters such as ( * ? have a meaning; put \ before one that stands for itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File %1<byte value="xd"/>
Line %2 pos %3 <byte value="xd"/>
%4<byte value="xd"/>
%5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 line:%2 pos:%3 src:%4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not a valid path: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document type &quot;%1&quot; cannot be loaded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The content does not match the document type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The entity &quot;%1&quot; is not declared</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The entity &quot;%1&quot; is outside the document, and is not read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The entity cannot be read from %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The entities of the document take far more memory than its text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document includes another one, which is not read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The elements of the document nest too deep</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The style sheet may not read %1, which is not in its folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The style sheet cannot be applied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The style sheet takes far more memory than the documents need</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1  file=%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%2: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not a JPEG file - hFFD8 expected at start of file %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Header seems corrupted - unknown Marker %1 %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No StartOfStream marker found %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I don&apos;t know what type of data this node requires - can&apos;t set its value.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The image cannot be shown without this node as it is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This node is required by others and cannot be deleted by itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only a document that reads everything has this node; rebuilding reads a basic one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The tag dictionary has no entry for this node.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file does not have this node, and it cannot be created without an entry in the tag dictionary.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 nodes of the file have this path.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;%1&quot; would be written as &quot;?&quot;: in a basic document, %2 holds Western European texts only.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create node failed %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A document that reads everything cannot be rebuilt; make one with xml, without --full.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 write failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 transfer of image from existing file failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete old file %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename file %1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another program has moved or replaced the new version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1. The new version is in %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is saved, but not known to be on disk. %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be saved in %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The text has &quot;]]&gt;&quot;, which could not be read back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The text has a control character that could not be read back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The text has elements, which must stand in a CDATA section to be kept</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A character between the changed ones could not be read, so it cannot be written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The id of an IFD element is not four hexadecimal digits: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document has more than one IMG element</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file was changed after it was read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file has another picture now, which needs tables that the document does not have</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The new version could not be read back: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temp file write failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temp file write integer %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temp file write long %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temp file write string</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>The segment would have %1 bytes, but its length says %2</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The value would have %1 bytes instead of %2</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Exif section - calculate data length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exif Offset Calculation failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can&apos;t tie up the MakerNote to its entry in the header (!??)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exif write failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Data format %1 error:%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The image cannot be shown without its scan header as the last segment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The segments of the file do not lead to its image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The segment would be longer than 65,535 bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>The Exif segment would be %1 bytes longer than the 65,535 that it has room for; rebuilding (&quot;Keep Untouched Data?&quot; off, --rebuild) may make it shorter</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>The Exif directories name the same bytes again and again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The directory could not be read, so that nothing in it can be changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file has one that could not be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The text of this entry is the place of what it leads to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A thumbnail in strips cannot be changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Four bytes or fewer would stand where their place is looked for</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The value is not a run of pairs of hexadecimal digits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The value stands outside its entry, and the document shows only where</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The value has to be four bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Values of this data type cannot be changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The old value is not all in the Exif segment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 would read %2 instead of %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 would have type %2 and count %3 instead of type %4 and count %5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 would stand at %2 instead of %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 would be lost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 would be new</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 would not be the same</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 would have another link to the next directory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 would not have the entries that it should</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>The file would have %1 segments instead of %2</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1 reads %2 instead of %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has type %2 and count %3 instead of type %4 and count %5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 stands at %2 instead of %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is lost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is new</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not the same</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has another link to the next directory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 does not have the entries that it should</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>The file has %1 segments instead of %2</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>The header of the Exif segment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Exif segment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The image at %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The segment %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture, or what follows it,</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 shared bytes with another value, which still has them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The data after the picture names positions in the file, which are others now</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 values changed, %2 unchanged, picture identical.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1. The original is kept as %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1. %2 was there already and stays as the original</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1, and %2 more</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Serial numbers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Names of people</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copyright notice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Titles, comments and keywords</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unique identifiers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maker&apos;s notes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thumbnail that is not known to show the picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>XMP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IPTC and Photoshop data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Comment segments</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other application segments</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exif data that the program does not know</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What follows the picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown tag %1 in %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Extended XMP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Photoshop and IPTC block</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Comment: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Application segment %1 %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview in the JFIF header</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview in a JFIF extension</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Index of further pictures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Second Exif segment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exif data that cannot be read in full</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bytes in the Exif data that nothing leads to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Directory %1, which is not shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thumbnail with other proportions than the picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thumbnail that shows something else than the picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thumbnail that cannot be compared with the picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A film</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Data of an unknown kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture has no end, so nothing can be said about what follows it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>after the picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>inside the image data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It stays, because the image data is never changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It stays, because it cannot be told from the picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It goes only with the whole Exif data</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 bytes, %3</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 bytes, %3; the program cannot look into it</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1. %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was found that identifies a person or a place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture up to its end</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>f/%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 EV</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>infinity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1°</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1° %2&apos; %3&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 hPa</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 bytes</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>The root element is %1, not JPEG</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No files found with search criteria specified.  Click &apos;Find Files&apos; button to try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List of files found (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checking file contents</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 files could not be checked. The first: %2</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The search ended early, because %1 files could not be checked. The first: %2</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Open File %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read File %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create file %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write file %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save XML File %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal XML document corrupt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transform XML</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>loadXML</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal JpegXml document error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid thumbnail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No program was found that opens it</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NodeAddForm</name>
    <message>
        <source>Node Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select the Node to add to the image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Node</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Node</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add Node</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PrivateForm</name>
    <message>
        <source>What Does It Tell?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is what the &amp;photograph tells of people and places. Select what you want to delete; it is gone from the file when you save.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the photograph tells</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Note</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete Selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProgressForm</name>
    <message>
        <source>Progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Punctuation</name>
    <message>
        <source>%1.</source>
        <comment>a sentence and its full stop</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the items of a list</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>&amp;Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>en</source>
        <extracomment>The code of the language that you translate into, such as &quot;de&quot; or &quot;zh-CN&quot;</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n photographs</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Shots</source>
        <extracomment>The photographs that were taken: the title of a table</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Photograph</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Camera</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lens</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time</source>
        <extracomment>Exposure time</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Aperture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ISO</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Focal length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sensitivity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Month</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not known</source>
        <extracomment>A camera, a focal length, a sensitivity or a month</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SlideForm</name>
    <message>
        <source>Slide Show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Details</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SlideShowOptionForm</name>
    <message>
        <source>Slide Show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full screen?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Slide show full screen or in a window?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resize large images?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resize large images to fit the slide window?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Details?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show details fo each file as it displays</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Seconds/Slide</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of seconds to show each  image. Enter 0 (zero) for manual control.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ValueLine</name>
    <message>
        <source>Only whole numbers from 0 to 65535 can be written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only whole numbers from 0 to 4294967295 can be written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only numbers such as 2.5 can be written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only whole numbers from -32768 to 32767 can be written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only whole numbers from -2147483648 to 2147483647 can be written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only fractions such as 1/125, up to 4294967295, can be written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only fractions such as -1/3, up to 2147483647, can be written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot be written: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Shows and edits the metadata of JPEG files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Photographs to list, and folders of them</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ovisto::AboutForm</name>
    <message>
        <source>Version %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Made with %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kernel: %1 %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Computer: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Processor: %1, %Ln cores</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Window system: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Screen: %1 x %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ovisto::AwakeScreen</name>
    <message>
        <source>A slide show is running</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ovisto::BatchForm</name>
    <message numerus="yes">
        <source>The list has %Ln files.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ovisto::BatchResults</name>
    <message>
        <source>failed: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not reached</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unchanged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Result</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ovisto::ControlForm</name>
    <message>
        <source>Goes with &quot;Keep Untouched Data?&quot;: what is written anew is read in the basic way.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ovisto::Editor</name>
    <message>
        <source>Metadata saved as %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All previous edits have been ignored, except for<byte value="xd"/>
nodes removed according to the Options menu.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Everything has to be read first. Switch on &quot;Keep Untouched Data?&quot; and<byte value="xd"/>
&quot;Read Everything?&quot; in the Options menu, and open the file again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Changes to file %1?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another program changed the file %1 after it was opened here.<byte value="xd"/>
<byte value="xd"/>
Save Over It: the file gets all values as they are shown here.<byte value="xd"/>
Read It Again: what you changed here is given up, and the file is shown as it is now.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save Over It</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Read It Again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 saved: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lost, as &quot;Keep Untouched Data?&quot; is off: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ovisto::FileListPane</name>
    <message>
        <source>The folder %1 is not there. Nothing was removed from the list.<byte value="xd"/>
Check that the disk or card is connected, and click the photograph again.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ovisto::KeywordPane</name>
    <message>
        <source>*.TXT (*.TXT *.txt);;All Files (*)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ovisto::LeftOutLine</name>
    <message>
        <source>Saving leaves out: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ovisto::ListActions</name>
    <message numerus="yes">
        <source>Lost something in %L1 of %Ln files, as &quot;Keep Untouched Data?&quot; is off. The originals are kept as NAME.original.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Open Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>XSL (*.xsl *.XSL);;All Files (*.*) (*)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ovisto::PictureBox</name>
    <message>
        <source>This file cannot be shown as a picture.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ovisto::PrivateForm</name>
    <message>
        <source>%1 – %2</source>
        <comment>kind, what was found</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ovisto cannot look into it.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ovisto::PropertyPane</name>
    <message>
        <source>No properties to show.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unexpected error - Node &apos;%1&apos; not found. Please reload the file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click on a node in the property NodeTree to select a value first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ovisto::PropertySheet</name>
    <message>
        <source>Properties of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size:</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 bytes</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Changed:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last read:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Owner:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Access:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can be read and changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can be read only</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ovisto::SlideForm</name>
    <message>
        <source>Press ESC or click the image to exit show,<byte value="xd"/>
left/right arrow to skip slides,<byte value="xd"/>
space to pause/unpause.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture ends early: part of the file is missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (paused)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slide Show</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
