<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>AboutForm</name>
    <message>
        <source>About Ovisto</source>
        <translation>Über Ovisto</translation>
    </message>
    <message>
        <source>Shows what a JPEG photograph tells about itself, and lets you edit it: titles, keywords, dates, the camera&apos;s notes. The picture itself is never compressed again.</source>
        <translation>Zeigt, was ein JPEG-Foto über sich selbst verrät, und lässt Sie es bearbeiten: Titel, Stichwörter, Datumsangaben, die Notizen der Kamera. Das Bild selbst wird nie neu komprimiert.</translation>
    </message>
    <message>
        <source>System information</source>
        <translation>Systeminformationen</translation>
    </message>
    <message>
        <source>&amp;System Information</source>
        <translation>&amp;Systeminformationen</translation>
    </message>
    <message>
        <source>Show what is known about this computer</source>
        <translation>Zeigen, was über diesen Computer bekannt ist</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Version of the program</source>
        <translation>Version des Programms</translation>
    </message>
    <message>
        <source>Libraries that the program is made with</source>
        <translation>Bibliotheken, aus denen das Programm besteht</translation>
    </message>
    <message>
        <source>What is known about this computer</source>
        <translation>Was über diesen Computer bekannt ist</translation>
    </message>
    <message>
        <source>Closes this window</source>
        <translation>Schließt dieses Fenster</translation>
    </message>
</context>
<context>
    <name>Advice</name>
    <message>
        <source>Change the value, or delete the property.</source>
        <translation>Ändern Sie den Wert oder löschen Sie die Eigenschaft.</translation>
    </message>
    <message>
        <source>Close other programs, and try again.</source>
        <translation>Beenden Sie andere Programme und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>Type a value of the data type that is shown below it: a whole number, or a fraction such as 1/125. Several are separated by commas.</source>
        <translation>Geben Sie einen Wert des Datentyps ein, der darunter angezeigt wird: eine ganze Zahl oder einen Bruch wie 1/125. Mehrere werden durch Kommas getrennt.</translation>
    </message>
    <message>
        <source>Check whether the file was moved, renamed or deleted.</source>
        <translation>Prüfen Sie, ob die Datei verschoben, umbenannt oder gelöscht wurde.</translation>
    </message>
    <message>
        <source>Copy what you can to another disk, and work there.</source>
        <translation>Kopieren Sie, was noch zu retten ist, auf einen anderen Datenträger und arbeiten Sie dort weiter.</translation>
    </message>
    <message>
        <source>Free some space on the disk, and try again.</source>
        <translation>Schaffen Sie Platz auf dem Datenträger und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>Check the permissions of the file and of its folder.</source>
        <translation>Prüfen Sie die Zugriffsrechte der Datei und ihres Ordners.</translation>
    </message>
    <message>
        <source>Check that the disk or card is connected, and that the folder was not renamed.</source>
        <translation>Prüfen Sie, ob der Datenträger oder die Speicherkarte angeschlossen ist und der Ordner nicht umbenannt wurde.</translation>
    </message>
    <message>
        <source>The file is not a JPEG photograph, or it is damaged. If it was one, restore it from your backup.</source>
        <translation>Die Datei ist kein JPEG-Foto oder sie ist beschädigt. Wenn sie eines war, stellen Sie sie aus Ihrer Sicherung wieder her.</translation>
    </message>
</context>
<context>
    <name>BatchForm</name>
    <message>
        <source>Batch Action</source>
        <translation>Stapelverarbeitung</translation>
    </message>
    <message>
        <source>Carry out the following action on all selected images in the Files Found List...</source>
        <translation>Folgende Aktion an allen ausgewählten Bildern in der Liste der gefundenen Dateien ausführen …</translation>
    </message>
    <message>
        <source>&amp;Node</source>
        <translation>&amp;Knoten</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>Knoten</translation>
    </message>
    <message>
        <source>&amp;Set to value</source>
        <translation>Auf &amp;Wert setzen</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>&amp;Delete Node</source>
        <translation>Knoten &amp;löschen</translation>
    </message>
    <message>
        <source>S&amp;tart</source>
        <translation>&amp;Starten</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>A&amp;bbrechen</translation>
    </message>
    <message>
        <source>The property to change in all photographs of the list</source>
        <translation>Die Eigenschaft, die in allen Fotos der Liste geändert wird</translation>
    </message>
    <message>
        <source>Gives the property the value below, in every photograph</source>
        <translation>Gibt der Eigenschaft in jedem Foto den Wert, der unten steht</translation>
    </message>
    <message>
        <source>The value that the property gets</source>
        <translation>Der Wert, den die Eigenschaft bekommt</translation>
    </message>
    <message>
        <source>Deletes the property from every photograph</source>
        <translation>Löscht die Eigenschaft aus jedem Foto</translation>
    </message>
    <message>
        <source>Changes all photographs of the list</source>
        <translation>Ändert alle Fotos der Liste</translation>
    </message>
    <message>
        <source>Closes the dialog and changes nothing</source>
        <translation>Schließt den Dialog, ohne etwas zu ändern</translation>
    </message>
</context>
<context>
    <name>BatchResultForm</name>
    <message>
        <source>Batch Result</source>
        <translation>Ergebnis der Stapelverarbeitung</translation>
    </message>
    <message>
        <source>Files and results</source>
        <translation>Dateien und Ergebnisse</translation>
    </message>
    <message>
        <source>&amp;Keep only the failed in the list</source>
        <translation>Nur &amp;fehlgeschlagene in der Liste behalten</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>What became of each photograph</source>
        <translation>Was aus jedem Foto geworden ist</translation>
    </message>
    <message>
        <source>Closes the dialog and takes all other photographs out of the list</source>
        <translation>Schließt den Dialog und nimmt alle anderen Fotos aus der Liste</translation>
    </message>
    <message>
        <source>Closes the dialog and leaves the list as it is</source>
        <translation>Schließt den Dialog und lässt die Liste, wie sie ist</translation>
    </message>
</context>
<context>
    <name>BatchWatch</name>
    <message>
        <source>Go on with the other files? Those that fail are listed at the end.</source>
        <translation>Mit den übrigen Dateien weitermachen? Fehlgeschlagene werden am Ende aufgelistet.</translation>
    </message>
    <message>
        <source>&amp;Go On</source>
        <translation>&amp;Weitermachen</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Anhalten</translation>
    </message>
    <message numerus="yes">
        <source>%Ln changed</source>
        <translation>
            <numerusform>%Ln geändert</numerusform>
            <numerusform>%Ln geändert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln unchanged</source>
        <translation>
            <numerusform>%Ln unverändert</numerusform>
            <numerusform>%Ln unverändert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln failed</source>
        <translation>
            <numerusform>%Ln fehlgeschlagen</numerusform>
            <numerusform>%Ln fehlgeschlagen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln not reached</source>
        <translation>
            <numerusform>%Ln nicht erreicht</numerusform>
            <numerusform>%Ln nicht erreicht</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BrowserCapForm</name>
    <message>
        <source>Find Files</source>
        <translation>Dateien suchen</translation>
    </message>
    <message>
        <source>Folders / Directories</source>
        <translation>Ordner / Verzeichnisse</translation>
    </message>
    <message>
        <source>Folder to scan</source>
        <translation>Zu durchsuchender Ordner</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Go to the folder above</source>
        <translation>Zum übergeordneten Ordner</translation>
    </message>
    <message>
        <source>Go to the home folder</source>
        <translation>Zum persönlichen Ordner</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Scan Options</source>
        <translation>Suchoptionen</translation>
    </message>
    <message>
        <source>Filename Pattern</source>
        <translation>Dateinamensmuster</translation>
    </message>
    <message>
        <source>list of file extensions separated by semicolon;</source>
        <translation>Liste von Dateiendungen, durch Semikolon getrennt;</translation>
    </message>
    <message>
        <source>Scan Subfolders as well?</source>
        <translation>Auch Unterordner durchsuchen?</translation>
    </message>
    <message>
        <source>Scan Subfolders of selected folder?</source>
        <translation>Unterordner des ausgewählten Ordners durchsuchen?</translation>
    </message>
    <message>
        <source>Add files found to list?</source>
        <translation>Gefundene Dateien zur Liste hinzufügen?</translation>
    </message>
    <message>
        <source>Add to list of files found (or clear)?</source>
        <translation>Zur Liste der gefundenen Dateien hinzufügen (oder sie leeren)?</translation>
    </message>
    <message>
        <source>Content Filter</source>
        <translation>Inhaltsfilter</translation>
    </message>
    <message>
        <source>Containing words</source>
        <translation>Enthaltene Wörter</translation>
    </message>
    <message>
        <source>Words to search for, or regular expression</source>
        <translation>Gesuchte Wörter oder regulärer Ausdruck</translation>
    </message>
    <message>
        <source>(separate words with commas)</source>
        <translation>(Wörter durch Kommas trennen)</translation>
    </message>
    <message>
        <source>Must find ALL words?</source>
        <translation>Müssen ALLE Wörter vorkommen?</translation>
    </message>
    <message>
        <source>File must have all words, or any of them?</source>
        <translation>Muss die Datei alle Wörter enthalten oder nur eines davon?</translation>
    </message>
    <message>
        <source>Find whole words only?</source>
        <translation>Nur ganze Wörter finden?</translation>
    </message>
    <message>
        <source>Look for whole words only or part of word</source>
        <translation>Nur ganze Wörter oder auch Wortteile suchen</translation>
    </message>
    <message>
        <source>Treat the text above as a Regular Expression</source>
        <translation>Den Text oben als regulären Ausdruck behandeln</translation>
    </message>
    <message>
        <source>Regular expression</source>
        <translation>Regulärer Ausdruck</translation>
    </message>
    <message>
        <source>Or, if you know how to write regular expressions, then enter your RegExp above and tick this box.</source>
        <translation>Oder, wenn Sie sich mit regulären Ausdrücken auskennen: Geben Sie oben einen ein und kreuzen Sie dieses Feld an.</translation>
    </message>
    <message>
        <source>Search shown values, too</source>
        <translation>Auch angezeigte Werte durchsuchen</translation>
    </message>
    <message>
        <source>Also look for the text above in the values as the property tree shows them, such as &quot;turned right&quot;</source>
        <translation>Den Text oben auch in den Werten suchen, wie der Eigenschaftenbaum sie zeigt, etwa „nach rechts gedreht“</translation>
    </message>
    <message>
        <source>&amp;Select Folder</source>
        <translation>Ordner &amp;auswählen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>To begin, choose the folder of your photographs. Nothing is searched before you press Select Folder.</source>
        <translation>Wählen Sie zuerst den Ordner mit Ihren Fotos. Gesucht wird erst, wenn Sie „Ordner auswählen“ drücken.</translation>
    </message>
    <message>
        <source>&amp;Recent</source>
        <translation>&amp;Zuletzt</translation>
    </message>
    <message>
        <source>Folders searched lately</source>
        <translation>Zuletzt durchsuchte Ordner</translation>
    </message>
    <message>
        <source>Searches the folder</source>
        <translation>Durchsucht den Ordner</translation>
    </message>
    <message>
        <source>Closes the dialog and changes nothing</source>
        <translation>Schließt den Dialog, ohne etwas zu ändern</translation>
    </message>
</context>
<context>
    <name>ControlForm</name>
    <message>
        <source>Find Files</source>
        <translation>Dateien suchen</translation>
    </message>
    <message>
        <source>Select &amp; scan a folder for image files</source>
        <translation>Einen Ordner auswählen und nach Bilddateien durchsuchen</translation>
    </message>
    <message>
        <source>List of images found</source>
        <translation>Liste der gefundenen Bilder</translation>
    </message>
    <message>
        <source>Images found</source>
        <translation>Gefundene Bilder</translation>
    </message>
    <message>
        <source>Save &amp; show previous image in list</source>
        <translation>Speichern und voriges Bild der Liste zeigen</translation>
    </message>
    <message>
        <source>Previous image</source>
        <translation>Voriges Bild</translation>
    </message>
    <message>
        <source>Save &amp; show next image in list</source>
        <translation>Speichern und nächstes Bild der Liste zeigen</translation>
    </message>
    <message>
        <source>Next image</source>
        <translation>Nächstes Bild</translation>
    </message>
    <message>
        <source>S&amp;lide Show</source>
        <translation>Diasho&amp;w</translation>
    </message>
    <message>
        <source>Show files listed in a slide-show</source>
        <translation>Die aufgelisteten Dateien als Diashow zeigen</translation>
    </message>
    <message>
        <source>&amp;Batch</source>
        <translation>Sta&amp;pel</translation>
    </message>
    <message>
        <source>Change all files listed</source>
        <translation>Alle aufgelisteten Dateien ändern</translation>
    </message>
    <message>
        <source>Your list of favourite keywords</source>
        <translation>Ihre Liste bevorzugter Stichwörter</translation>
    </message>
    <message>
        <source>Favourite keywords</source>
        <translation>Bevorzugte Stichwörter</translation>
    </message>
    <message>
        <source>&amp;Keywords</source>
        <translation>S&amp;tichwörter</translation>
    </message>
    <message>
        <source>Load a different keyword list from a file</source>
        <translation>Eine andere Stichwortliste aus einer Datei laden</translation>
    </message>
    <message>
        <source>Drop photographs or folders of them here, or choose Find Files.</source>
        <translation>Legen Sie hier Fotos oder Ordner mit Fotos ab oder klicken Sie auf „Dateien suchen“.</translation>
    </message>
    <message>
        <source>Left click to open, right click for properties</source>
        <translation>Linksklick öffnet, Rechtsklick zeigt Eigenschaften</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>OS Properties</source>
        <translation>Desktop-Eigenschaften</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>Titel:</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Kommentare</translation>
    </message>
    <message>
        <source>Subject:</source>
        <translation>Thema:</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Thema</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Stichwörter</translation>
    </message>
    <message>
        <source>Ditto</source>
        <translation>Dito</translation>
    </message>
    <message>
        <source>Repeat from previous image</source>
        <translation>Vom vorigen Bild übernehmen</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save changes made to this file</source>
        <translation>Änderungen an dieser Datei speichern</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Zurücksetzen</translation>
    </message>
    <message>
        <source>Undo ALL changes made to this file</source>
        <translation>ALLE Änderungen an dieser Datei rückgängig machen</translation>
    </message>
    <message>
        <source>This file has changes that are not saved yet</source>
        <translation>Diese Datei hat Änderungen, die noch nicht gespeichert sind</translation>
    </message>
    <message>
        <source>Changes not saved</source>
        <translation>Änderungen nicht gespeichert</translation>
    </message>
    <message>
        <source>File Property Tree</source>
        <translation>Eigenschaftenbaum der Datei</translation>
    </message>
    <message>
        <source>File properties</source>
        <translation>Eigenschaften der Datei</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Eigenschaft</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Current Node</source>
        <translation>Aktueller Knoten</translation>
    </message>
    <message>
        <source>Name of current file</source>
        <translation>Name der aktuellen Datei</translation>
    </message>
    <message>
        <source>Tag number</source>
        <translation>Tag-Nummer</translation>
    </message>
    <message>
        <source>Show as Hex?</source>
        <translation>Als Hex anzeigen?</translation>
    </message>
    <message>
        <source>Translate to hexadecimal code?</source>
        <translation>In hexadezimalen Code übersetzen?</translation>
    </message>
    <message>
        <source>Value of property selected in tree</source>
        <translation>Wert der im Baum ausgewählten Eigenschaft</translation>
    </message>
    <message>
        <source>Thumbnail</source>
        <translation>Miniaturbild</translation>
    </message>
    <message>
        <source>Values that this property can have, and what they mean</source>
        <translation>Werte, die diese Eigenschaft haben kann, und was sie bedeuten</translation>
    </message>
    <message>
        <source>Known values</source>
        <translation>Bekannte Werte</translation>
    </message>
    <message>
        <source>What the value means</source>
        <translation>Was der Wert bedeutet</translation>
    </message>
    <message>
        <source>Data type</source>
        <translation>Datentyp</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>&amp;Add Node</source>
        <translation>Knoten &amp;hinzufügen</translation>
    </message>
    <message>
        <source>Add new node</source>
        <translation>Neuen Knoten hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Delete Node</source>
        <translation>Knoten &amp;löschen</translation>
    </message>
    <message>
        <source>CAUTION: use at own risk!</source>
        <translation>VORSICHT: auf eigene Gefahr!</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Optionen</translation>
    </message>
    <message>
        <source>&amp;Image</source>
        <translation>&amp;Bild</translation>
    </message>
    <message>
        <source>Save &amp;XML</source>
        <translation>&amp;XML speichern</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>&amp;What Does It Tell?</source>
        <translation>&amp;Was verrät das Foto?</translation>
    </message>
    <message>
        <source>Lists what the photograph tells of people and places, and deletes what you select.</source>
        <translation>Listet auf, was das Foto über Personen und Orte verrät, und löscht, was Sie auswählen.</translation>
    </message>
    <message>
        <source>&amp;Generate Report</source>
        <translation>Bericht &amp;erstellen</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Keep Maker Notes?</source>
        <translation>Herstellernotizen behalten?</translation>
    </message>
    <message>
        <source>Keep Thumbnails?</source>
        <translation>Miniaturbilder behalten?</translation>
    </message>
    <message>
        <source>Keep Non-standard Exif?</source>
        <translation>Nicht standardgemäßes Exif behalten?</translation>
    </message>
    <message>
        <source>Keep Untouched Data?</source>
        <translation>Unberührte Daten behalten?</translation>
    </message>
    <message>
        <source>Saving changes only what you edited and leaves the rest of the file as it is. Counts from the next file opened.</source>
        <translation>Speichern ändert nur, was Sie bearbeitet haben, und lässt den Rest der Datei, wie er ist. Gilt ab der nächsten geöffneten Datei.</translation>
    </message>
    <message>
        <source>Read Everything?</source>
        <translation>Alles lesen?</translation>
    </message>
    <message>
        <source>Shows texts in any language and the place, all as it was written. Counts from the next file opened.</source>
        <translation>Zeigt Texte in jeder Sprache und den Aufnahmeort, alles wie geschrieben. Gilt ab der nächsten geöffneten Datei.</translation>
    </message>
    <message>
        <source>Show Technical Data?</source>
        <translation>Technische Daten anzeigen?</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>OS &amp;Properties</source>
        <translation>Datei&amp;eigenschaften</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Photographs and keywords</source>
        <translation>Fotos und Stichwörter</translation>
    </message>
    <message>
        <source>Photographs</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Enter inserts the keyword</source>
        <translation>Die Eingabetaste fügt das Stichwort ein</translation>
    </message>
    <message>
        <source>Picture and its descriptions</source>
        <translation>Bild und seine Beschreibungen</translation>
    </message>
    <message>
        <source>Title of the photograph, as the desktop shows it</source>
        <translation>Titel des Fotos, wie ihn der Desktop anzeigt</translation>
    </message>
    <message>
        <source>Comments on the photograph, as the desktop shows them</source>
        <translation>Kommentare zum Foto, wie sie der Desktop anzeigt</translation>
    </message>
    <message>
        <source>Subject of the photograph, as the desktop shows it</source>
        <translation>Thema des Fotos, wie es der Desktop anzeigt</translation>
    </message>
    <message>
        <source>Keywords of the photograph, as the desktop shows them</source>
        <translation>Stichwörter des Fotos, wie sie der Desktop anzeigt</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Property tree</source>
        <translation>Eigenschaftenbaum</translation>
    </message>
    <message>
        <source>F2 edits the value, Delete deletes the property</source>
        <translation>F2 bearbeitet den Wert, Entf löscht die Eigenschaft</translation>
    </message>
    <message>
        <source>What the selected property is for</source>
        <translation>Wozu die ausgewählte Eigenschaft dient</translation>
    </message>
    <message>
        <source>&amp;Recent Folders</source>
        <translation>Zu&amp;letzt durchsuchte Ordner</translation>
    </message>
    <message>
        <source>&amp;Find Files</source>
        <translation>Dateien s&amp;uchen</translation>
    </message>
    <message>
        <source>Find W&amp;ords</source>
        <translation>Wö&amp;rter suchen</translation>
    </message>
    <message>
        <source>Read &amp;Again</source>
        <translation>&amp;Neu einlesen</translation>
    </message>
    <message>
        <source>Arrow keys open the photograph above or below; the focus then moves to the property tree</source>
        <translation>Die Pfeiltasten öffnen das Foto darüber oder darunter; der Fokus geht dann zum Eigenschaftenbaum</translation>
    </message>
</context>
<context>
    <name>DataType</name>
    <message>
        <source>Byte</source>
        <translation>Byte</translation>
    </message>
    <message>
        <source>String</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>Ganzzahl (16 Bit)</translation>
    </message>
    <message>
        <source>Long</source>
        <translation>Ganzzahl (32 Bit)</translation>
    </message>
    <message>
        <source>Rational</source>
        <translation>Bruch</translation>
    </message>
    <message>
        <source>Signed Byte</source>
        <translation>Byte mit Vorzeichen</translation>
    </message>
    <message>
        <source>Undefined</source>
        <translation>Undefiniert</translation>
    </message>
    <message>
        <source>Signed Short</source>
        <translation>Ganzzahl mit Vorzeichen (16 Bit)</translation>
    </message>
    <message>
        <source>Signed Long</source>
        <translation>Ganzzahl mit Vorzeichen (32 Bit)</translation>
    </message>
    <message>
        <source>Signed Rational</source>
        <translation>Bruch mit Vorzeichen</translation>
    </message>
    <message>
        <source>Unicode String</source>
        <translation>Unicode-Text</translation>
    </message>
    <message>
        <source>Float</source>
        <translation>Gleitkommazahl (32 Bit)</translation>
    </message>
    <message>
        <source>Double</source>
        <translation>Gleitkommazahl (64 Bit)</translation>
    </message>
    <message>
        <source>Directory Position</source>
        <translation>Verzeichnisposition</translation>
    </message>
    <message>
        <source>UTF-8 String</source>
        <translation>UTF-8-Text</translation>
    </message>
    <message>
        <source>%1 Required</source>
        <translation>%1, erforderlich</translation>
    </message>
    <message>
        <source>%1 Protected</source>
        <translation>%1, geschützt</translation>
    </message>
</context>
<context>
    <name>FailureMessages</name>
    <message>
        <source>The report does not cover these files:</source>
        <translation>Diese Dateien fehlen im Bericht:</translation>
    </message>
    <message>
        <source>There is no such file or folder:</source>
        <translation>Datei oder Ordner nicht vorhanden:</translation>
    </message>
    <message numerus="yes">
        <source>and %Ln more</source>
        <translation>
            <numerusform>und %Ln weitere</numerusform>
            <numerusform>und %Ln weitere</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Other folders that could not be read (%Ln):</source>
        <translation>
            <numerusform>Weitere Ordner, die nicht gelesen werden konnten (%Ln):</numerusform>
            <numerusform>Weitere Ordner, die nicht gelesen werden konnten (%Ln):</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>GapKeys</name>
    <message>
        <source>Width: %1</source>
        <translation>Breite: %1</translation>
    </message>
    <message>
        <source>Height: %1</source>
        <translation>Höhe: %1</translation>
    </message>
</context>
<context>
    <name>HelpContents</name>
    <message>
        <source>Unable to display Help Contents. There is no Help associated with this project.</source>
        <translation>Die Hilfe kann nicht angezeigt werden. Zu diesem Programm gehört keine Hilfe.</translation>
    </message>
    <message>
        <source>No program was found that shows web pages.</source>
        <translation>Es wurde kein Programm gefunden, das Webseiten anzeigt.</translation>
    </message>
</context>
<context>
    <name>LeftOutLine</name>
    <message>
        <source>maker notes</source>
        <translation>Herstellernotizen</translation>
    </message>
    <message>
        <source>thumbnails</source>
        <translation>Miniaturbilder</translation>
    </message>
    <message>
        <source>non-standard Exif</source>
        <translation>nicht standardgemäßes Exif</translation>
    </message>
    <message>
        <source>what is not shown</source>
        <translation>was nicht angezeigt wird</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1<byte value="xd"/>
%2 : %3</source>
        <translation>%1<byte value="xd"/>
%2: %3</translation>
    </message>
    <message>
        <source>Invalid procedure call or argument</source>
        <translation>Ungültiger Aufruf oder ungültiges Argument</translation>
    </message>
    <message>
        <source>Overflow</source>
        <translation>Überlauf</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>Nicht genügend Arbeitsspeicher</translation>
    </message>
    <message>
        <source>Type mismatch</source>
        <translation>Falscher Datentyp</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>Datei nicht gefunden</translation>
    </message>
    <message>
        <source>Device I/O error</source>
        <translation>Ein-/Ausgabefehler des Geräts</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Datenträger voll</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Zugriff verweigert</translation>
    </message>
    <message>
        <source>Path/File access error</source>
        <translation>Fehler beim Zugriff auf Pfad oder Datei</translation>
    </message>
    <message>
        <source>Path not found</source>
        <translation>Pfad nicht gefunden</translation>
    </message>
    <message>
        <source>Object not set</source>
        <translation>Objekt nicht gesetzt</translation>
    </message>
    <message>
        <source>Unexpected error</source>
        <translation>Unerwarteter Fehler</translation>
    </message>
    <message>
        <source>It is a folder, not a file</source>
        <translation>Es ist ein Ordner, keine Datei</translation>
    </message>
    <message>
        <source>It is not a folder</source>
        <translation>Es ist kein Ordner</translation>
    </message>
    <message>
        <source>It is not a regular file</source>
        <translation>Es ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>There is no folder %1</source>
        <translation>Es gibt keinen Ordner %1</translation>
    </message>
    <message>
        <source>Interrupted</source>
        <translation>Unterbrochen</translation>
    </message>
    <message>
        <source>Not a regular expression: %1: %2 (at character %3)</source>
        <translation>Kein regulärer Ausdruck: %1: %2 (bei Zeichen %3)</translation>
    </message>
    <message>
        <source>The regular expression runs too long: %1</source>
        <translation>Der reguläre Ausdruck braucht zu lange: %1</translation>
    </message>
    <message>
        <source>The words &quot;%1&quot; cannot be searched for: %2. Characters such as ( * ? have a meaning; put \ before one that stands for itself.</source>
        <translation>Nach den Wörtern „%1“ kann nicht gesucht werden: %2. Zeichen wie ( * ? haben eine Bedeutung; setzen Sie \ vor eines, das für sich selbst steht.</translation>
    </message>
    <message>
        <source>File %1<byte value="xd"/>
Line %2 pos %3 <byte value="xd"/>
%4<byte value="xd"/>
%5</source>
        <translation>Datei %1<byte value="xd"/>
Zeile %2, Position %3 <byte value="xd"/>
%4<byte value="xd"/>
%5</translation>
    </message>
    <message>
        <source>%1 line:%2 pos:%3 src:%4</source>
        <translation>%1 Zeile: %2, Position: %3, Quelle: %4</translation>
    </message>
    <message>
        <source>Not a valid path: %1</source>
        <translation>Kein gültiger Pfad: %1</translation>
    </message>
    <message>
        <source>The document type &quot;%1&quot; cannot be loaded</source>
        <translation>Der Dokumenttyp „%1“ kann nicht geladen werden</translation>
    </message>
    <message>
        <source>The content does not match the document type</source>
        <translation>Der Inhalt passt nicht zum Dokumenttyp</translation>
    </message>
    <message>
        <source>The entity &quot;%1&quot; is not declared</source>
        <translation>Die Entität „%1“ ist nicht deklariert</translation>
    </message>
    <message>
        <source>The entity &quot;%1&quot; is outside the document, and is not read</source>
        <translation>Die Entität „%1“ liegt außerhalb des Dokuments und wird nicht gelesen</translation>
    </message>
    <message>
        <source>The entity cannot be read from %1</source>
        <translation>Die Entität kann nicht aus %1 gelesen werden</translation>
    </message>
    <message>
        <source>The entities of the document take far more memory than its text</source>
        <translation>Die Entitäten des Dokuments brauchen weit mehr Speicher als sein Text</translation>
    </message>
    <message>
        <source>The document includes another one, which is not read</source>
        <translation>Das Dokument bindet ein anderes ein, das nicht gelesen wird</translation>
    </message>
    <message>
        <source>The elements of the document nest too deep</source>
        <translation>Die Elemente des Dokuments sind zu tief verschachtelt</translation>
    </message>
    <message>
        <source>The style sheet may not read %1, which is not in its folder</source>
        <translation>Das Stylesheet darf %1 nicht lesen, da die Datei nicht in seinem Ordner liegt</translation>
    </message>
    <message>
        <source>The style sheet cannot be applied</source>
        <translation>Das Stylesheet kann nicht angewendet werden</translation>
    </message>
    <message>
        <source>The style sheet takes far more memory than the documents need</source>
        <translation>Das Stylesheet braucht weit mehr Speicher, als die Dokumente erfordern</translation>
    </message>
    <message>
        <source>%1  file=%2</source>
        <translation>%1  Datei=%2</translation>
    </message>
    <message>
        <source>%2: %1</source>
        <translation>%2: %1</translation>
    </message>
    <message>
        <source>Not a JPEG file - hFFD8 expected at start of file %1</source>
        <translation>Keine JPEG-Datei – hFFD8 am Anfang der Datei erwartet: %1</translation>
    </message>
    <message>
        <source>Header seems corrupted - unknown Marker %1 %2</source>
        <translation>Header offenbar beschädigt – unbekannter Marker %1 %2</translation>
    </message>
    <message>
        <source>No StartOfStream marker found %1</source>
        <translation>Kein Marker für den Anfang der Bilddaten gefunden: %1</translation>
    </message>
    <message>
        <source>I don&apos;t know what type of data this node requires - can&apos;t set its value.</source>
        <translation>Der Datentyp dieses Knotens ist unbekannt – sein Wert kann nicht gesetzt werden.</translation>
    </message>
    <message>
        <source>The image cannot be shown without this node as it is.</source>
        <translation>Ohne diesen Knoten, so wie er ist, lässt sich das Bild nicht anzeigen.</translation>
    </message>
    <message>
        <source>This node is required by others and cannot be deleted by itself.</source>
        <translation>Andere Knoten brauchen diesen; er kann nicht für sich allein gelöscht werden.</translation>
    </message>
    <message>
        <source>Only a document that reads everything has this node; rebuilding reads a basic one.</source>
        <translation>Diesen Knoten hat nur ein Dokument, in dem alles gelesen ist; beim Neuaufbau wird einfach gelesen.</translation>
    </message>
    <message>
        <source>The tag dictionary has no entry for this node.</source>
        <translation>Das Tag-Wörterbuch hat keinen Eintrag für diesen Knoten.</translation>
    </message>
    <message>
        <source>The file does not have this node, and it cannot be created without an entry in the tag dictionary.</source>
        <translation>Die Datei hat diesen Knoten nicht, und ohne einen Eintrag im Tag-Wörterbuch kann er nicht angelegt werden.</translation>
    </message>
    <message numerus="yes">
        <source>%1 nodes of the file have this path.</source>
        <translation>
            <numerusform>%1 Knoten der Datei hat diesen Pfad.</numerusform>
            <numerusform>%1 Knoten der Datei haben diesen Pfad.</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;%1&quot; would be written as &quot;?&quot;: in a basic document, %2 holds Western European texts only.</source>
        <translation>„%1“ würde als „?“ geschrieben: In einem einfach gelesenen Dokument sind unter „%2“ nur westeuropäische Texte möglich.</translation>
    </message>
    <message>
        <source>Create node failed %1</source>
        <translation>Knoten konnte nicht angelegt werden: %1</translation>
    </message>
    <message>
        <source>A document that reads everything cannot be rebuilt; make one with xml, without --full.</source>
        <translation>Ein Dokument, in dem alles gelesen ist, kann nicht neu aufgebaut werden; erzeugen Sie eines mit xml, ohne --full.</translation>
    </message>
    <message>
        <source>Write to %1</source>
        <translation>Schreiben in %1</translation>
    </message>
    <message>
        <source>%1 write failed</source>
        <translation>Schreiben von %1 fehlgeschlagen</translation>
    </message>
    <message>
        <source>%1 transfer of image from existing file failed</source>
        <translation>%1: Übernahme des Bildes aus der vorhandenen Datei fehlgeschlagen</translation>
    </message>
    <message>
        <source>Delete old file %1</source>
        <translation>Alte Datei %1 löschen</translation>
    </message>
    <message>
        <source>Rename file %1 to %2</source>
        <translation>Datei %1 in %2 umbenennen</translation>
    </message>
    <message>
        <source>Another program has moved or replaced the new version</source>
        <translation>Ein anderes Programm hat die neue Fassung verschoben oder ersetzt</translation>
    </message>
    <message>
        <source>%1. The new version is in %2</source>
        <translation>%1. Die neue Fassung steht in %2</translation>
    </message>
    <message>
        <source>It is saved, but not known to be on disk. %1</source>
        <translation>Gespeichert, aber ob es auf dem Datenträger angekommen ist, ist nicht bekannt. %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be saved in %2</source>
        <translation>„%1“ konnte nicht in %2 gespeichert werden</translation>
    </message>
    <message>
        <source>The text has &quot;]]&gt;&quot;, which could not be read back</source>
        <translation>Der Text enthält „]]&gt;“, was sich nicht wieder einlesen ließe</translation>
    </message>
    <message>
        <source>The text has a control character that could not be read back</source>
        <translation>Der Text enthält ein Steuerzeichen, das sich nicht wieder einlesen ließe</translation>
    </message>
    <message>
        <source>The text has elements, which must stand in a CDATA section to be kept</source>
        <translation>Der Text enthält Elemente, die nur in einem CDATA-Abschnitt erhalten bleiben</translation>
    </message>
    <message>
        <source>A character between the changed ones could not be read, so it cannot be written.</source>
        <translation>Ein Zeichen zwischen den geänderten konnte nicht gelesen werden und kann daher nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The id of an IFD element is not four hexadecimal digits: %1</source>
        <translation>Die id eines IFD-Elements besteht nicht aus vier Hexadezimalziffern: %1</translation>
    </message>
    <message>
        <source>The document has more than one IMG element</source>
        <translation>Das Dokument hat mehr als ein IMG-Element</translation>
    </message>
    <message>
        <source>The file was changed after it was read</source>
        <translation>Die Datei wurde nach dem Lesen geändert</translation>
    </message>
    <message>
        <source>The file has another picture now, which needs tables that the document does not have</source>
        <translation>Die Datei enthält jetzt ein anderes Bild, das Tabellen braucht, die das Dokument nicht hat</translation>
    </message>
    <message>
        <source>The new version could not be read back: %1</source>
        <translation>Die neue Fassung ließ sich nicht wieder einlesen: %1</translation>
    </message>
    <message>
        <source>Temp file write failed</source>
        <translation>Schreiben in die temporäre Datei fehlgeschlagen</translation>
    </message>
    <message>
        <source>Temp file write integer %1</source>
        <translation>Schreiben einer Zahl (2 Byte) in die temporäre Datei: %1</translation>
    </message>
    <message>
        <source>Temp file write long %1</source>
        <translation>Schreiben einer Zahl (4 Byte) in die temporäre Datei: %1</translation>
    </message>
    <message>
        <source>Temp file write string</source>
        <translation>Schreiben eines Textes in die temporäre Datei</translation>
    </message>
    <message numerus="yes">
        <source>The segment would have %1 bytes, but its length says %2</source>
        <translation>
            <numerusform>Das Segment hätte %1 Byte, seine Länge sagt aber %2</numerusform>
            <numerusform>Das Segment hätte %1 Byte, seine Länge sagt aber %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The value would have %1 bytes instead of %2</source>
        <translation>
            <numerusform>Der Wert hätte %1 Byte statt %2</numerusform>
            <numerusform>Der Wert hätte %1 Byte statt %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Exif section - calculate data length</source>
        <translation>Exif-Abschnitt – Berechnen der Datenlänge</translation>
    </message>
    <message>
        <source>Exif Offset Calculation failed</source>
        <translation>Berechnen der Exif-Positionen fehlgeschlagen</translation>
    </message>
    <message>
        <source>Can&apos;t tie up the MakerNote to its entry in the header (!??)</source>
        <translation>Die Herstellernotizen lassen sich ihrem Eintrag im Header nicht zuordnen (!??)</translation>
    </message>
    <message>
        <source>Exif write failed</source>
        <translation>Schreiben der Exif-Daten fehlgeschlagen</translation>
    </message>
    <message>
        <source>Data format %1 error:%2</source>
        <translation>Fehler bei Datenformat %1: %2</translation>
    </message>
    <message>
        <source>The image cannot be shown without its scan header as the last segment</source>
        <translation>Ohne seinen Scan-Header als letztes Segment lässt sich das Bild nicht anzeigen</translation>
    </message>
    <message>
        <source>The segments of the file do not lead to its image</source>
        <translation>Die Segmente der Datei führen nicht zu ihrem Bild</translation>
    </message>
    <message>
        <source>The segment would be longer than 65,535 bytes</source>
        <translation>Das Segment wäre länger als 65.535 Byte</translation>
    </message>
    <message numerus="yes">
        <source>The Exif segment would be %1 bytes longer than the 65,535 that it has room for; rebuilding (&quot;Keep Untouched Data?&quot; off, --rebuild) may make it shorter</source>
        <translation>
            <numerusform>Das Exif-Segment wäre um %1 Byte länger als die 65.535 Byte, für die es Platz hat; ein Neuaufbau („Unberührte Daten behalten?“ aus, --rebuild) kann es kürzen</numerusform>
            <numerusform>Das Exif-Segment wäre um %1 Byte länger als die 65.535 Byte, für die es Platz hat; ein Neuaufbau („Unberührte Daten behalten?“ aus, --rebuild) kann es kürzen</numerusform>
        </translation>
    </message>
    <message>
        <source>The Exif directories name the same bytes again and again</source>
        <translation>Die Exif-Verzeichnisse nennen immer wieder dieselben Bytes</translation>
    </message>
    <message>
        <source>The directory could not be read, so that nothing in it can be changed</source>
        <translation>Das Verzeichnis konnte nicht gelesen werden, daher kann darin nichts geändert werden</translation>
    </message>
    <message>
        <source>The file has one that could not be read</source>
        <translation>Die Datei hat eines, das nicht gelesen werden konnte</translation>
    </message>
    <message>
        <source>The text of this entry is the place of what it leads to</source>
        <translation>Der Text dieses Eintrags ist die Stelle dessen, worauf er verweist</translation>
    </message>
    <message>
        <source>A thumbnail in strips cannot be changed</source>
        <translation>Ein Miniaturbild in Streifen kann nicht geändert werden</translation>
    </message>
    <message>
        <source>Four bytes or fewer would stand where their place is looked for</source>
        <translation>Vier Byte oder weniger stünden dort, wo ihre Position gesucht wird</translation>
    </message>
    <message>
        <source>The value is not a run of pairs of hexadecimal digits</source>
        <translation>Der Wert besteht nicht aus Paaren von Hexadezimalziffern</translation>
    </message>
    <message>
        <source>The value stands outside its entry, and the document shows only where</source>
        <translation>Der Wert steht außerhalb seines Eintrags, und das Dokument zeigt nur, wo</translation>
    </message>
    <message>
        <source>The value has to be four bytes</source>
        <translation>Der Wert muss vier Byte lang sein</translation>
    </message>
    <message>
        <source>Values of this data type cannot be changed</source>
        <translation>Werte dieses Datentyps können nicht geändert werden</translation>
    </message>
    <message>
        <source>The old value is not all in the Exif segment</source>
        <translation>Der alte Wert liegt nicht ganz im Exif-Segment</translation>
    </message>
    <message>
        <source>%1 would read %2 instead of %3</source>
        <translation>%1 würde %2 statt %3 lauten</translation>
    </message>
    <message>
        <source>%1 would have type %2 and count %3 instead of type %4 and count %5</source>
        <translation>%1 hätte Typ %2 und Anzahl %3 statt Typ %4 und Anzahl %5</translation>
    </message>
    <message>
        <source>%1 would stand at %2 instead of %3</source>
        <translation>%1 stünde an Position %2 statt %3</translation>
    </message>
    <message>
        <source>%1 would be lost</source>
        <translation>%1 ginge verloren</translation>
    </message>
    <message>
        <source>%1 would be new</source>
        <translation>%1 wäre neu</translation>
    </message>
    <message>
        <source>%1 would not be the same</source>
        <translation>%1 würde sich ändern</translation>
    </message>
    <message>
        <source>%1 would have another link to the next directory</source>
        <translation>%1 hätte einen anderen Verweis auf das nächste Verzeichnis</translation>
    </message>
    <message>
        <source>%1 would not have the entries that it should</source>
        <translation>%1 hätte nicht die Einträge, die es haben sollte</translation>
    </message>
    <message numerus="yes">
        <source>The file would have %1 segments instead of %2</source>
        <translation>
            <numerusform>Die Datei hätte %1 Segment statt %2</numerusform>
            <numerusform>Die Datei hätte %1 Segmente statt %2</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 reads %2 instead of %3</source>
        <translation>%1 lautet %2 statt %3</translation>
    </message>
    <message>
        <source>%1 has type %2 and count %3 instead of type %4 and count %5</source>
        <translation>%1 hat Typ %2 und Anzahl %3 statt Typ %4 und Anzahl %5</translation>
    </message>
    <message>
        <source>%1 stands at %2 instead of %3</source>
        <translation>%1 steht an Position %2 statt %3</translation>
    </message>
    <message>
        <source>%1 is lost</source>
        <translation>%1 ist verloren gegangen</translation>
    </message>
    <message>
        <source>%1 is new</source>
        <translation>%1 ist neu</translation>
    </message>
    <message>
        <source>%1 is not the same</source>
        <translation>%1 hat sich geändert</translation>
    </message>
    <message>
        <source>%1 has another link to the next directory</source>
        <translation>%1 hat einen anderen Verweis auf das nächste Verzeichnis</translation>
    </message>
    <message>
        <source>%1 does not have the entries that it should</source>
        <translation>%1 hat nicht die Einträge, die es haben sollte</translation>
    </message>
    <message numerus="yes">
        <source>The file has %1 segments instead of %2</source>
        <translation>
            <numerusform>Die Datei hat %1 Segment statt %2</numerusform>
            <numerusform>Die Datei hat %1 Segmente statt %2</numerusform>
        </translation>
    </message>
    <message>
        <source>The header of the Exif segment</source>
        <translation>Der Header des Exif-Segments</translation>
    </message>
    <message>
        <source>The Exif segment</source>
        <translation>Das Exif-Segment</translation>
    </message>
    <message>
        <source>The image at %1</source>
        <translation>Das Bild bei %1</translation>
    </message>
    <message>
        <source>The segment %1</source>
        <translation>Das Segment %1</translation>
    </message>
    <message>
        <source>The picture, or what follows it,</source>
        <translation>Das Bild oder das, was darauf folgt,</translation>
    </message>
    <message>
        <source>%1 shared bytes with another value, which still has them</source>
        <translation>%1 teilte sich Bytes mit einem anderen Wert, der sie noch hat</translation>
    </message>
    <message>
        <source>The data after the picture names positions in the file, which are others now</source>
        <translation>Die Daten nach dem Bild nennen Positionen in der Datei, die jetzt andere sind</translation>
    </message>
    <message numerus="yes">
        <source>%1 values changed, %2 unchanged, picture identical.</source>
        <translation>
            <numerusform>%1 Wert geändert, %2 unverändert, Bild identisch.</numerusform>
            <numerusform>%1 Werte geändert, %2 unverändert, Bild identisch.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1. The original is kept as %2</source>
        <translation>%1. Das Original bleibt als %2 erhalten</translation>
    </message>
    <message>
        <source>%1. %2 was there already and stays as the original</source>
        <translation>%1. %2 war schon vorhanden und bleibt als Original</translation>
    </message>
    <message numerus="yes">
        <source>%1, and %2 more</source>
        <translation>
            <numerusform>%1 und %2 weitere</numerusform>
            <numerusform>%1 und %2 weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Aufnahmeort</translation>
    </message>
    <message>
        <source>Serial numbers</source>
        <translation>Seriennummern</translation>
    </message>
    <message>
        <source>Names of people</source>
        <translation>Namen von Personen</translation>
    </message>
    <message>
        <source>Copyright notice</source>
        <translation>Urheberrechtsvermerk</translation>
    </message>
    <message>
        <source>Titles, comments and keywords</source>
        <translation>Titel, Kommentare und Stichwörter</translation>
    </message>
    <message>
        <source>Unique identifiers</source>
        <translation>Eindeutige Kennungen</translation>
    </message>
    <message>
        <source>Maker&apos;s notes</source>
        <translation>Herstellernotizen</translation>
    </message>
    <message>
        <source>Thumbnail that is not known to show the picture</source>
        <translation>Miniaturbild, von dem nicht bekannt ist, ob es das Bild zeigt</translation>
    </message>
    <message>
        <source>XMP</source>
        <translation>XMP</translation>
    </message>
    <message>
        <source>IPTC and Photoshop data</source>
        <translation>IPTC- und Photoshop-Daten</translation>
    </message>
    <message>
        <source>Comment segments</source>
        <translation>Kommentarsegmente</translation>
    </message>
    <message>
        <source>Other application segments</source>
        <translation>Andere Anwendungssegmente</translation>
    </message>
    <message>
        <source>Exif data that the program does not know</source>
        <translation>Exif-Daten, die das Programm nicht kennt</translation>
    </message>
    <message>
        <source>What follows the picture</source>
        <translation>Was auf das Bild folgt</translation>
    </message>
    <message>
        <source>Unknown tag %1 in %2</source>
        <translation>Unbekanntes Tag %1 in %2</translation>
    </message>
    <message>
        <source>Extended XMP</source>
        <translation>Erweitertes XMP</translation>
    </message>
    <message>
        <source>Photoshop and IPTC block</source>
        <translation>Photoshop- und IPTC-Block</translation>
    </message>
    <message>
        <source>Comment: %1</source>
        <translation>Kommentar: %1</translation>
    </message>
    <message>
        <source>Application segment %1 %2</source>
        <translation>Anwendungssegment %1 %2</translation>
    </message>
    <message>
        <source>Preview in the JFIF header</source>
        <translation>Vorschaubild im JFIF-Header</translation>
    </message>
    <message>
        <source>Preview in a JFIF extension</source>
        <translation>Vorschaubild in einer JFIF-Erweiterung</translation>
    </message>
    <message>
        <source>Index of further pictures</source>
        <translation>Verzeichnis weiterer Bilder</translation>
    </message>
    <message>
        <source>Second Exif segment</source>
        <translation>Zweites Exif-Segment</translation>
    </message>
    <message>
        <source>Exif data that cannot be read in full</source>
        <translation>Exif-Daten, die nicht vollständig gelesen werden können</translation>
    </message>
    <message>
        <source>Bytes in the Exif data that nothing leads to</source>
        <translation>Bytes in den Exif-Daten, auf die nichts verweist</translation>
    </message>
    <message>
        <source>Directory %1, which is not shown</source>
        <translation>Verzeichnis %1, das nicht angezeigt wird</translation>
    </message>
    <message>
        <source>Thumbnail with other proportions than the picture</source>
        <translation>Miniaturbild mit anderem Seitenverhältnis als das Bild</translation>
    </message>
    <message>
        <source>Thumbnail that shows something else than the picture</source>
        <translation>Miniaturbild, das etwas anderes zeigt als das Bild</translation>
    </message>
    <message>
        <source>Thumbnail that cannot be compared with the picture</source>
        <translation>Miniaturbild, das sich nicht mit dem Bild vergleichen lässt</translation>
    </message>
    <message>
        <source>Another picture</source>
        <translation>Ein weiteres Bild</translation>
    </message>
    <message>
        <source>A film</source>
        <translation>Ein Film</translation>
    </message>
    <message>
        <source>Data of an unknown kind</source>
        <translation>Daten unbekannter Art</translation>
    </message>
    <message>
        <source>The picture has no end, so nothing can be said about what follows it</source>
        <translation>Das Bild hat kein Ende, daher lässt sich nicht sagen, was darauf folgt</translation>
    </message>
    <message>
        <source>after the picture</source>
        <translation>nach dem Bild</translation>
    </message>
    <message>
        <source>inside the image data</source>
        <translation>innerhalb der Bilddaten</translation>
    </message>
    <message>
        <source>It stays, because the image data is never changed</source>
        <translation>Es bleibt, weil die Bilddaten nie geändert werden</translation>
    </message>
    <message>
        <source>It stays, because it cannot be told from the picture</source>
        <translation>Es bleibt, weil es sich nicht vom Bild unterscheiden lässt</translation>
    </message>
    <message>
        <source>It goes only with the whole Exif data</source>
        <translation>Es verschwindet nur mit den gesamten Exif-Daten</translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 bytes, %3</source>
        <translation>
            <numerusform>%1, %2 Byte, %3</numerusform>
            <numerusform>%1, %2 Byte, %3</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 bytes, %3; the program cannot look into it</source>
        <translation>
            <numerusform>%1, %2 Byte, %3; das Programm kann nicht hineinsehen</numerusform>
            <numerusform>%1, %2 Byte, %3; das Programm kann nicht hineinsehen</numerusform>
        </translation>
    </message>
    <message>
        <source>%1. %2.</source>
        <translation>%1. %2.</translation>
    </message>
    <message>
        <source>Nothing was found that identifies a person or a place</source>
        <translation>Es wurde nichts gefunden, was auf eine Person oder einen Ort schließen lässt</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>f/%1</source>
        <translation>f/%1</translation>
    </message>
    <message>
        <source>%1 EV</source>
        <translation>%1 EV</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 m</translation>
    </message>
    <message>
        <source>infinity</source>
        <translation>unendlich</translation>
    </message>
    <message>
        <source>%1°</source>
        <translation>%1°</translation>
    </message>
    <message>
        <source>%1° %2&apos; %3&quot;</source>
        <translation>%1° %2&apos; %3&quot;</translation>
    </message>
    <message>
        <source>%1 °C</source>
        <translation>%1 °C</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 hPa</source>
        <translation>%1 hPa</translation>
    </message>
    <message numerus="yes">
        <source>%1 bytes</source>
        <translation>
            <numerusform>%1 Byte</numerusform>
            <numerusform>%1 Byte</numerusform>
        </translation>
    </message>
    <message>
        <source>The root element is %1, not JPEG</source>
        <translation>Das Wurzelelement ist %1, nicht JPEG</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>Ordner nicht gefunden</translation>
    </message>
    <message>
        <source>No files found with search criteria specified.  Click &apos;Find Files&apos; button to try again.</source>
        <translation>Keine Dateien gefunden, die den Suchkriterien entsprechen.  Klicken Sie auf „Dateien suchen“, um es noch einmal zu versuchen.</translation>
    </message>
    <message>
        <source>List of files found (%1)</source>
        <translation>Liste der gefundenen Dateien (%1)</translation>
    </message>
    <message>
        <source>Checking file contents</source>
        <translation>Dateiinhalte werden geprüft</translation>
    </message>
    <message numerus="yes">
        <source>%1 files could not be checked. The first: %2</source>
        <translation>
            <numerusform>%1 Datei konnte nicht geprüft werden. Die erste: %2</numerusform>
            <numerusform>%1 Dateien konnten nicht geprüft werden. Die erste: %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The search ended early, because %1 files could not be checked. The first: %2</source>
        <translation>
            <numerusform>Die Suche endete vorzeitig, weil %1 Datei nicht geprüft werden konnte. Die erste: %2</numerusform>
            <numerusform>Die Suche endete vorzeitig, weil %1 Dateien nicht geprüft werden konnten. Die erste: %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Open File %1</source>
        <translation>Datei %1 öffnen</translation>
    </message>
    <message>
        <source>Read File %1</source>
        <translation>Datei %1 lesen</translation>
    </message>
    <message>
        <source>Create file %1</source>
        <translation>Datei %1 anlegen</translation>
    </message>
    <message>
        <source>Write file %1</source>
        <translation>Datei %1 schreiben</translation>
    </message>
    <message>
        <source>Save XML File %1</source>
        <translation>XML-Datei %1 speichern</translation>
    </message>
    <message>
        <source>Internal XML document corrupt</source>
        <translation>Internes XML-Dokument beschädigt</translation>
    </message>
    <message>
        <source>Transform XML</source>
        <translation>XML umwandeln</translation>
    </message>
    <message>
        <source>loadXML</source>
        <translation>XML laden</translation>
    </message>
    <message>
        <source>Internal JpegXml document error</source>
        <translation>Fehler im internen XML-Dokument der JPEG-Datei</translation>
    </message>
    <message>
        <source>Invalid picture</source>
        <translation>Ungültiges Bild</translation>
    </message>
    <message>
        <source>Invalid thumbnail</source>
        <translation>Ungültiges Miniaturbild</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>%1 öffnen</translation>
    </message>
    <message>
        <source>No program was found that opens it</source>
        <translation>Es wurde kein Programm gefunden, das diese Datei öffnet</translation>
    </message>
    <message>
        <source>The document has other frames or tables than the file, which would change the picture</source>
        <translation>Das Dokument hat andere Frames oder Tabellen als die Datei, was das Bild verändern würde</translation>
    </message>
</context>
<context>
    <name>NodeAddForm</name>
    <message>
        <source>Node Add</source>
        <translation>Knoten hinzufügen</translation>
    </message>
    <message>
        <source>Select the Node to add to the image</source>
        <translation>Wählen Sie den Knoten, der dem Bild hinzugefügt werden soll</translation>
    </message>
    <message>
        <source>&amp;Node</source>
        <translation>&amp;Knoten</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>Knoten</translation>
    </message>
    <message>
        <source>&amp;Add Node</source>
        <translation>Knoten &amp;hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>A&amp;bbrechen</translation>
    </message>
    <message>
        <source>The property to add</source>
        <translation>Die Eigenschaft, die hinzukommt</translation>
    </message>
    <message>
        <source>Adds the selected property to the photograph</source>
        <translation>Fügt dem Foto die ausgewählte Eigenschaft hinzu</translation>
    </message>
    <message>
        <source>Closes the dialog and adds nothing</source>
        <translation>Schließt den Dialog, ohne etwas hinzuzufügen</translation>
    </message>
</context>
<context>
    <name>PrivateForm</name>
    <message>
        <source>What Does It Tell?</source>
        <translation>Was verrät das Foto?</translation>
    </message>
    <message>
        <source>This is what the &amp;photograph tells of people and places. Select what you want to delete; it is gone from the file when you save.</source>
        <translation>Das verrät das &amp;Foto über Personen und Orte. Wählen Sie aus, was Sie löschen möchten; beim Speichern verschwindet es aus der Datei.</translation>
    </message>
    <message>
        <source>What the photograph tells</source>
        <translation>Was das Foto verrät</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Was</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>Bytes</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>Wo</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Anmerkung</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Alle auswählen</translation>
    </message>
    <message>
        <source>&amp;Delete Selected</source>
        <translation>Ausgewählte &amp;löschen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>The space bar ticks what is to be deleted</source>
        <translation>Die Leertaste markiert, was gelöscht werden soll</translation>
    </message>
    <message>
        <source>Ticks everything that can be deleted</source>
        <translation>Markiert alles, was gelöscht werden kann</translation>
    </message>
    <message>
        <source>Deletes what is ticked; it is gone from the file when you save</source>
        <translation>Löscht, was markiert ist; aus der Datei verschwindet es beim Speichern</translation>
    </message>
    <message>
        <source>Closes the dialog and deletes nothing</source>
        <translation>Schließt den Dialog, ohne etwas zu löschen</translation>
    </message>
</context>
<context>
    <name>ProgressForm</name>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Files done</source>
        <translation>Erledigte Dateien</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Stops before the next file; what is done stays done</source>
        <translation>Hält vor der nächsten Datei an; was erledigt ist, bleibt erledigt</translation>
    </message>
</context>
<context>
    <name>Punctuation</name>
    <message>
        <source>%1.</source>
        <comment>a sentence and its full stop</comment>
        <translation>%1.</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the items of a list</comment>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nein</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>en</source>
        <extracomment>The code of the language that you translate into, such as &quot;de&quot; or &quot;zh-CN&quot;</extracomment>
        <translation>de</translation>
    </message>
    <message numerus="yes">
        <source>%n photographs</source>
        <translation>
            <numerusform>%n Foto</numerusform>
            <numerusform>%n Fotos</numerusform>
        </translation>
    </message>
    <message>
        <source>Shots</source>
        <extracomment>The photographs that were taken: the title of a table</extracomment>
        <translation>Aufnahmen</translation>
    </message>
    <message>
        <source>Photograph</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>Objektiv</translation>
    </message>
    <message>
        <source>Time</source>
        <extracomment>Exposure time</extracomment>
        <translation>Belichtungszeit</translation>
    </message>
    <message>
        <source>Aperture</source>
        <translation>Blende</translation>
    </message>
    <message>
        <source>ISO</source>
        <translation>ISO</translation>
    </message>
    <message>
        <source>Focal length</source>
        <translation>Brennweite</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Aufnahmeort</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistik</translation>
    </message>
    <message>
        <source>Sensitivity</source>
        <translation>Empfindlichkeit</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Monat</translation>
    </message>
    <message>
        <source>not known</source>
        <extracomment>A camera, a focal length, a sensitivity or a month</extracomment>
        <translation>unbekannt</translation>
    </message>
</context>
<context>
    <name>SlideForm</name>
    <message>
        <source>Slide Show</source>
        <translation>Diashow</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Einzelheiten</translation>
    </message>
</context>
<context>
    <name>SlideShowOptionForm</name>
    <message>
        <source>Slide Show</source>
        <translation>Diashow</translation>
    </message>
    <message>
        <source>Full screen?</source>
        <translation>Vollbild?</translation>
    </message>
    <message>
        <source>Show Slide show full screen or in a window?</source>
        <translation>Diashow im Vollbild oder in einem Fenster zeigen?</translation>
    </message>
    <message>
        <source>Resize large images?</source>
        <translation>Große Bilder verkleinern?</translation>
    </message>
    <message>
        <source>Resize large images to fit the slide window?</source>
        <translation>Große Bilder auf die Größe des Diashow-Fensters verkleinern?</translation>
    </message>
    <message>
        <source>Show Details?</source>
        <translation>Einzelheiten anzeigen?</translation>
    </message>
    <message>
        <source>Show details fo each file as it displays</source>
        <translation>Zu jeder gezeigten Datei Einzelheiten anzeigen</translation>
    </message>
    <message>
        <source>Seconds/Slide</source>
        <translation>Sekunden/Bild</translation>
    </message>
    <message>
        <source>Number of seconds to show each  image. Enter 0 (zero) for manual control.</source>
        <translation>Anzahl der Sekunden, die jedes Bild gezeigt wird. Geben Sie 0 (null) ein, um von Hand weiterzuschalten.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Starts the slide show</source>
        <translation>Startet die Diashow</translation>
    </message>
    <message>
        <source>Closes the dialog and starts no show</source>
        <translation>Schließt den Dialog, ohne die Diashow zu starten</translation>
    </message>
</context>
<context>
    <name>ValueLine</name>
    <message>
        <source>Only whole numbers from 0 to 65535 can be written.</source>
        <translation>Nur ganze Zahlen von 0 bis 65535 können geschrieben werden.</translation>
    </message>
    <message>
        <source>Only whole numbers from 0 to 4294967295 can be written.</source>
        <translation>Nur ganze Zahlen von 0 bis 4294967295 können geschrieben werden.</translation>
    </message>
    <message>
        <source>Only numbers such as 2.5 can be written.</source>
        <translation>Nur Zahlen wie 2.5 (mit Punkt) können geschrieben werden.</translation>
    </message>
    <message>
        <source>Only whole numbers from -32768 to 32767 can be written.</source>
        <translation>Nur ganze Zahlen von -32768 bis 32767 können geschrieben werden.</translation>
    </message>
    <message>
        <source>Only whole numbers from -2147483648 to 2147483647 can be written.</source>
        <translation>Nur ganze Zahlen von -2147483648 bis 2147483647 können geschrieben werden.</translation>
    </message>
    <message>
        <source>Only fractions such as 1/125, up to 4294967295, can be written.</source>
        <translation>Nur Brüche wie 1/125, mit Zahlen bis 4294967295, können geschrieben werden.</translation>
    </message>
    <message>
        <source>Only fractions such as -1/3, up to 2147483647, can be written.</source>
        <translation>Nur Brüche wie -1/3, mit Zahlen bis 2147483647, können geschrieben werden.</translation>
    </message>
    <message>
        <source>Cannot be written: %1</source>
        <translation>Kann nicht geschrieben werden: %1</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Shows and edits the metadata of JPEG files.</source>
        <translation>Zeigt und bearbeitet die Metadaten von JPEG-Dateien.</translation>
    </message>
    <message>
        <source>Photographs to list, and folders of them</source>
        <translation>Fotos, die aufgelistet werden sollen, und Ordner mit Fotos</translation>
    </message>
</context>
<context>
    <name>ovisto::AboutForm</name>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Made with %1.</source>
        <translation>Erstellt mit %1.</translation>
    </message>
    <message>
        <source>System: %1</source>
        <translation>System: %1</translation>
    </message>
    <message>
        <source>Kernel: %1 %2</source>
        <translation>Kernel: %1 %2</translation>
    </message>
    <message>
        <source>Computer: %1</source>
        <translation>Computer: %1</translation>
    </message>
    <message numerus="yes">
        <source>Processor: %1, %Ln cores</source>
        <translation>
            <numerusform>Prozessor: %1, %Ln Kern</numerusform>
            <numerusform>Prozessor: %1, %Ln Kerne</numerusform>
        </translation>
    </message>
    <message>
        <source>Window system: %1</source>
        <translation>Fenstersystem: %1</translation>
    </message>
    <message>
        <source>Screen: %1 x %2</source>
        <translation>Bildschirm: %1 × %2</translation>
    </message>
</context>
<context>
    <name>ovisto::AwakeScreen</name>
    <message>
        <source>A slide show is running</source>
        <translation>Eine Diashow läuft</translation>
    </message>
</context>
<context>
    <name>ovisto::BatchForm</name>
    <message numerus="yes">
        <source>The list has %Ln files.</source>
        <translation>
            <numerusform>Die Liste enthält %Ln Datei.</numerusform>
            <numerusform>Die Liste enthält %Ln Dateien.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ovisto::BatchResults</name>
    <message>
        <source>failed: %1</source>
        <translation>fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>not reached</source>
        <translation>nicht erreicht</translation>
    </message>
    <message>
        <source>unchanged</source>
        <translation>unverändert</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>geändert</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
</context>
<context>
    <name>ovisto::ControlForm</name>
    <message>
        <source>Goes with &quot;Keep Untouched Data?&quot;: what is written anew is read in the basic way.</source>
        <translation>Gehört zu „Unberührte Daten behalten?“: Was neu geschrieben wird, wird einfach gelesen.</translation>
    </message>
</context>
<context>
    <name>ovisto::Editor</name>
    <message>
        <source>Metadata saved as %1</source>
        <translation>Metadaten gespeichert als %1</translation>
    </message>
    <message>
        <source>All previous edits have been ignored, except for<byte value="xd"/>
nodes removed according to the Options menu.</source>
        <translation>Alle bisherigen Änderungen wurden übergangen, außer<byte value="xd"/>
den Knoten, die gemäß dem Menü „Optionen“ entfernt wurden.</translation>
    </message>
    <message>
        <source>Everything has to be read first. Switch on &quot;Keep Untouched Data?&quot; and<byte value="xd"/>
&quot;Read Everything?&quot; in the Options menu, and open the file again.</source>
        <translation>Zuerst muss alles gelesen werden. Schalten Sie „Unberührte Daten behalten?“ und<byte value="xd"/>
„Alles lesen?“ im Menü „Optionen“ ein und öffnen Sie die Datei erneut.</translation>
    </message>
    <message>
        <source>Save Changes to file %1?</source>
        <translation>Änderungen an der Datei %1 speichern?</translation>
    </message>
    <message>
        <source>Another program changed the file %1 after it was opened here.<byte value="xd"/>
<byte value="xd"/>
Save Over It: the file gets all values as they are shown here.<byte value="xd"/>
Read It Again: what you changed here is given up, and the file is shown as it is now.</source>
        <translation>Ein anderes Programm hat die Datei %1 geändert, nachdem sie hier geöffnet wurde.<byte value="xd"/>
<byte value="xd"/>
Überschreiben: Die Datei erhält alle Werte, wie sie hier angezeigt werden.<byte value="xd"/>
Neu lesen: Was Sie hier geändert haben, wird verworfen und die Datei wird gezeigt, wie sie jetzt ist.</translation>
    </message>
    <message>
        <source>&amp;Save Over It</source>
        <translation>&amp;Überschreiben</translation>
    </message>
    <message>
        <source>&amp;Read It Again</source>
        <translation>&amp;Neu lesen</translation>
    </message>
    <message>
        <source>%1 saved: %2</source>
        <translation>%1 gespeichert: %2</translation>
    </message>
    <message>
        <source>Lost, as &quot;Keep Untouched Data?&quot; is off: %1</source>
        <translation>Verloren, da „Unberührte Daten behalten?“ ausgeschaltet ist: %1</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Verwerfen</translation>
    </message>
    <message>
        <source>Discard the changes to file %1 and read it again?</source>
        <translation>Die Änderungen an der Datei %1 verwerfen und sie neu einlesen?</translation>
    </message>
</context>
<context>
    <name>ovisto::FileListPane</name>
    <message>
        <source>The folder %1 is not there. Nothing was removed from the list.<byte value="xd"/>
Check that the disk or card is connected, and click the photograph again.</source>
        <translation>Der Ordner %1 ist nicht vorhanden. Aus der Liste wurde nichts entfernt.<byte value="xd"/>
Prüfen Sie, ob der Datenträger oder die Speicherkarte angeschlossen ist, und klicken Sie das Foto erneut an.</translation>
    </message>
</context>
<context>
    <name>ovisto::GapMark</name>
    <message>
        <source>Arrow keys move the gap, F8 goes to the next one, Esc goes back</source>
        <translation>Die Pfeiltasten verschieben die Trennlinie, F8 geht zur nächsten, Esc geht zurück</translation>
    </message>
</context>
<context>
    <name>ovisto::KeywordPane</name>
    <message>
        <source>*.TXT (*.TXT *.txt);;All Files (*)</source>
        <translation>*.TXT (*.TXT *.txt);;Alle Dateien (*)</translation>
    </message>
</context>
<context>
    <name>ovisto::LeftOutLine</name>
    <message>
        <source>Saving leaves out: %1</source>
        <translation>Beim Speichern entfallen: %1</translation>
    </message>
    <message>
        <source>Enter opens the menu at the option</source>
        <translation>Die Eingabetaste öffnet das Menü bei der Option</translation>
    </message>
</context>
<context>
    <name>ovisto::ListActions</name>
    <message numerus="yes">
        <source>Lost something in %L1 of %Ln files, as &quot;Keep Untouched Data?&quot; is off. The originals are kept as NAME.original.</source>
        <translation>
            <numerusform>In %L1 von %Ln Datei ging etwas verloren, da „Unberührte Daten behalten?“ ausgeschaltet ist. Die Originale bleiben als NAME.original erhalten.</numerusform>
            <numerusform>In %L1 von %Ln Dateien ging etwas verloren, da „Unberührte Daten behalten?“ ausgeschaltet ist. Die Originale bleiben als NAME.original erhalten.</numerusform>
        </translation>
    </message>
    <message>
        <source>Open Report</source>
        <translation>Bericht öffnen</translation>
    </message>
    <message>
        <source>XSL (*.xsl *.XSL);;All Files (*.*) (*)</source>
        <translation>XSL (*.xsl *.XSL);;Alle Dateien (*.*) (*)</translation>
    </message>
</context>
<context>
    <name>ovisto::PictureBox</name>
    <message>
        <source>This file cannot be shown as a picture.</source>
        <translation>Diese Datei kann nicht als Bild angezeigt werden.</translation>
    </message>
</context>
<context>
    <name>ovisto::PrivateForm</name>
    <message>
        <source>%1 – %2</source>
        <comment>kind, what was found</comment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>Ovisto cannot look into it.</source>
        <translation>Ovisto kann nicht hineinsehen.</translation>
    </message>
</context>
<context>
    <name>ovisto::PropertyPane</name>
    <message>
        <source>No properties to show.</source>
        <translation>Keine Eigenschaften anzuzeigen.</translation>
    </message>
    <message>
        <source>Unexpected error - Node &apos;%1&apos; not found. Please reload the file.</source>
        <translation>Unerwarteter Fehler – Knoten „%1“ nicht gefunden. Bitte laden Sie die Datei neu.</translation>
    </message>
    <message>
        <source>Click on a node in the property NodeTree to select a value first.</source>
        <translation>Klicken Sie zuerst auf einen Knoten im Eigenschaftenbaum, um einen Wert auszuwählen.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Delete %1 and all that belongs to it?</source>
        <translation>%1 und alles, was dazugehört, löschen?</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Delete %1?</source>
        <translation>%1 löschen?</translation>
    </message>
</context>
<context>
    <name>ovisto::PropertySheet</name>
    <message>
        <source>Properties of %1</source>
        <translation>Eigenschaften von %1</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Ordner:</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Typ:</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Größe:</translation>
    </message>
    <message numerus="yes">
        <source>%1 bytes</source>
        <translation>
            <numerusform>%1 Byte</numerusform>
            <numerusform>%1 Byte</numerusform>
        </translation>
    </message>
    <message>
        <source>Changed:</source>
        <translation>Geändert:</translation>
    </message>
    <message>
        <source>Last read:</source>
        <translation>Zuletzt gelesen:</translation>
    </message>
    <message>
        <source>Owner:</source>
        <translation>Eigentümer:</translation>
    </message>
    <message>
        <source>Access:</source>
        <translation>Zugriff:</translation>
    </message>
    <message>
        <source>Can be read and changed</source>
        <translation>Kann gelesen und geändert werden</translation>
    </message>
    <message>
        <source>Can be read only</source>
        <translation>Kann nur gelesen werden</translation>
    </message>
    <message>
        <source>Closes this window</source>
        <translation>Schließt dieses Fenster</translation>
    </message>
</context>
<context>
    <name>ovisto::RecentMenu</name>
    <message>
        <source>No folder was searched yet</source>
        <translation>Noch wurde kein Ordner durchsucht</translation>
    </message>
    <message>
        <source>&amp;Clear This List</source>
        <translation>Liste &amp;leeren</translation>
    </message>
</context>
<context>
    <name>ovisto::SlideForm</name>
    <message>
        <source>Press ESC or click the image to exit show,<byte value="xd"/>
left/right arrow to skip slides,<byte value="xd"/>
space to pause/unpause.</source>
        <translation>Esc oder ein Klick auf das Bild beendet die Diashow,<byte value="xd"/>
Pfeil links/rechts springt zum vorigen/nächsten Bild,<byte value="xd"/>
Leertaste hält an und setzt fort.</translation>
    </message>
    <message>
        <source>The picture ends early: part of the file is missing.</source>
        <translation>Das Bild endet vorzeitig: Ein Teil der Datei fehlt.</translation>
    </message>
    <message>
        <source>%1 (paused)</source>
        <translation>%1 (angehalten)</translation>
    </message>
    <message>
        <source>Slide Show</source>
        <translation>Diashow</translation>
    </message>
</context>
</TS>
