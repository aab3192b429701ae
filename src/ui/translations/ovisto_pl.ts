<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL">
<context>
    <name>AboutForm</name>
    <message>
        <source>About Ovisto</source>
        <translation>O programie Ovisto</translation>
    </message>
    <message>
        <source>Shows what a JPEG photograph tells about itself, and lets you edit it: titles, keywords, dates, the camera&apos;s notes. The picture itself is never compressed again.</source>
        <translation>Pokazuje, co zdjęcie JPEG mówi o sobie, i pozwala to edytować: tytuły, słowa kluczowe, daty, notatki aparatu. Sam obraz nigdy nie jest ponownie kompresowany.</translation>
    </message>
    <message>
        <source>System information</source>
        <translation>Informacje o systemie</translation>
    </message>
    <message>
        <source>&amp;System Information</source>
        <translation>&amp;Informacje o systemie</translation>
    </message>
    <message>
        <source>Show what is known about this computer</source>
        <translation>Pokaż, co wiadomo o tym komputerze</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Zamknij</translation>
    </message>
    <message>
        <source>Version of the program</source>
        <translation>Wersja programu</translation>
    </message>
    <message>
        <source>Libraries that the program is made with</source>
        <translation>Biblioteki, z których zbudowano program</translation>
    </message>
    <message>
        <source>What is known about this computer</source>
        <translation>Co wiadomo o tym komputerze</translation>
    </message>
    <message>
        <source>Closes this window</source>
        <translation>Zamyka to okno</translation>
    </message>
</context>
<context>
    <name>Advice</name>
    <message>
        <source>Change the value, or delete the property.</source>
        <translation>Zmień wartość lub usuń właściwość.</translation>
    </message>
    <message>
        <source>Close other programs, and try again.</source>
        <translation>Zamknij inne programy i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Type a value of the data type that is shown below it: a whole number, or a fraction such as 1/125. Several are separated by commas.</source>
        <translation>Wpisz wartość typu danych podanego pod nią: liczbę całkowitą lub ułamek, np. 1/125. Kilka wartości rozdziela się przecinkami.</translation>
    </message>
    <message>
        <source>Check whether the file was moved, renamed or deleted.</source>
        <translation>Sprawdź, czy pliku nie przeniesiono, nie usunięto i czy nie zmieniono jego nazwy.</translation>
    </message>
    <message>
        <source>Copy what you can to another disk, and work there.</source>
        <translation>Skopiuj, co się da, na inny dysk i pracuj na nim.</translation>
    </message>
    <message>
        <source>Free some space on the disk, and try again.</source>
        <translation>Zwolnij miejsce na dysku i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Check the permissions of the file and of its folder.</source>
        <translation>Sprawdź uprawnienia do pliku i jego folderu.</translation>
    </message>
    <message>
        <source>Check that the disk or card is connected, and that the folder was not renamed.</source>
        <translation>Sprawdź, czy podłączono dysk lub kartę i czy nie zmieniono nazwy folderu.</translation>
    </message>
    <message>
        <source>The file is not a JPEG photograph, or it is damaged. If it was one, restore it from your backup.</source>
        <translation>Plik nie jest zdjęciem JPEG albo jest uszkodzony. Jeśli był zdjęciem, przywróć go z kopii zapasowej.</translation>
    </message>
</context>
<context>
    <name>BatchForm</name>
    <message>
        <source>Batch Action</source>
        <translation>Działanie wsadowe</translation>
    </message>
    <message>
        <source>Carry out the following action on all selected images in the Files Found List...</source>
        <translation>Wykonaj poniższe działanie na wszystkich wybranych zdjęciach z listy znalezionych plików...</translation>
    </message>
    <message>
        <source>&amp;Node</source>
        <translation>&amp;Węzeł</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>Węzeł</translation>
    </message>
    <message>
        <source>&amp;Set to value</source>
        <translation>&amp;Ustaw wartość</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wartość</translation>
    </message>
    <message>
        <source>&amp;Delete Node</source>
        <translation>U&amp;suń węzeł</translation>
    </message>
    <message>
        <source>S&amp;tart</source>
        <translation>Wy&amp;konaj</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Anuluj</translation>
    </message>
    <message>
        <source>The property to change in all photographs of the list</source>
        <translation>Właściwość, która zmieni się we wszystkich zdjęciach z listy</translation>
    </message>
    <message>
        <source>Gives the property the value below, in every photograph</source>
        <translation>Nadaje właściwości w każdym zdjęciu wartość podaną niżej</translation>
    </message>
    <message>
        <source>The value that the property gets</source>
        <translation>Wartość, którą otrzyma właściwość</translation>
    </message>
    <message>
        <source>Deletes the property from every photograph</source>
        <translation>Usuwa właściwość z każdego zdjęcia</translation>
    </message>
    <message>
        <source>Changes all photographs of the list</source>
        <translation>Zmienia wszystkie zdjęcia z listy</translation>
    </message>
    <message>
        <source>Closes the dialog and changes nothing</source>
        <translation>Zamyka okno i niczego nie zmienia</translation>
    </message>
</context>
<context>
    <name>BatchResultForm</name>
    <message>
        <source>Batch Result</source>
        <translation>Wynik działania wsadowego</translation>
    </message>
    <message>
        <source>Files and results</source>
        <translation>Pliki i wyniki</translation>
    </message>
    <message>
        <source>&amp;Keep only the failed in the list</source>
        <translation>&amp;Pozostaw na liście tylko pliki z błędem</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Zamknij</translation>
    </message>
    <message>
        <source>What became of each photograph</source>
        <translation>Co się stało z każdym zdjęciem</translation>
    </message>
    <message>
        <source>Closes the dialog and takes all other photographs out of the list</source>
        <translation>Zamyka okno i usuwa z listy wszystkie pozostałe zdjęcia</translation>
    </message>
    <message>
        <source>Closes the dialog and leaves the list as it is</source>
        <translation>Zamyka okno i pozostawia listę bez zmian</translation>
    </message>
</context>
<context>
    <name>BatchWatch</name>
    <message>
        <source>Go on with the other files? Those that fail are listed at the end.</source>
        <translation>Kontynuować z pozostałymi plikami? Pliki z błędem zostaną wymienione na końcu.</translation>
    </message>
    <message>
        <source>&amp;Go On</source>
        <translation>&amp;Kontynuuj</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Przerwij</translation>
    </message>
    <message numerus="yes">
        <source>%Ln changed</source>
        <translation>
            <numerusform>%Ln plik zmieniony</numerusform>
            <numerusform>%Ln pliki zmienione</numerusform>
            <numerusform>%Ln plików zmienionych</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln unchanged</source>
        <translation>
            <numerusform>%Ln bez zmian</numerusform>
            <numerusform>%Ln bez zmian</numerusform>
            <numerusform>%Ln bez zmian</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln failed</source>
        <translation>
            <numerusform>%Ln z błędem</numerusform>
            <numerusform>%Ln z błędem</numerusform>
            <numerusform>%Ln z błędem</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln not reached</source>
        <translation>
            <numerusform>%Ln nieprzetworzony</numerusform>
            <numerusform>%Ln nieprzetworzone</numerusform>
            <numerusform>%Ln nieprzetworzonych</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BrowserCapForm</name>
    <message>
        <source>Find Files</source>
        <translation>Znajdź pliki</translation>
    </message>
    <message>
        <source>Folders / Directories</source>
        <translation>Foldery / katalogi</translation>
    </message>
    <message>
        <source>Folder to scan</source>
        <translation>Folder do przeszukania</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>Go to the folder above</source>
        <translation>Przejdź do folderu nadrzędnego</translation>
    </message>
    <message>
        <source>Go to the home folder</source>
        <translation>Przejdź do folderu domowego</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Foldery</translation>
    </message>
    <message>
        <source>Scan Options</source>
        <translation>Opcje przeszukiwania</translation>
    </message>
    <message>
        <source>Filename Pattern</source>
        <translation>Wzorzec nazwy pliku</translation>
    </message>
    <message>
        <source>list of file extensions separated by semicolon;</source>
        <translation>lista rozszerzeń plików rozdzielonych średnikiem;</translation>
    </message>
    <message>
        <source>Scan Subfolders as well?</source>
        <translation>Przeszukaj też podfoldery</translation>
    </message>
    <message>
        <source>Scan Subfolders of selected folder?</source>
        <translation>Czy przeszukać podfoldery wybranego folderu?</translation>
    </message>
    <message>
        <source>Add files found to list?</source>
        <translation>Dodaj znalezione pliki do listy</translation>
    </message>
    <message>
        <source>Add to list of files found (or clear)?</source>
        <translation>Dodać do listy znalezionych plików (czy ją wyczyścić)?</translation>
    </message>
    <message>
        <source>Content Filter</source>
        <translation>Filtr zawartości</translation>
    </message>
    <message>
        <source>Containing words</source>
        <translation>Zawiera słowa</translation>
    </message>
    <message>
        <source>Words to search for, or regular expression</source>
        <translation>Szukane słowa lub wyrażenie regularne</translation>
    </message>
    <message>
        <source>(separate words with commas)</source>
        <translation>(słowa rozdziel przecinkami)</translation>
    </message>
    <message>
        <source>Must find ALL words?</source>
        <translation>Wymagaj WSZYSTKICH słów</translation>
    </message>
    <message>
        <source>File must have all words, or any of them?</source>
        <translation>Czy plik musi zawierać wszystkie słowa, czy dowolne z nich?</translation>
    </message>
    <message>
        <source>Find whole words only?</source>
        <translation>Tylko całe słowa</translation>
    </message>
    <message>
        <source>Look for whole words only or part of word</source>
        <translation>Szukaj tylko całych słów lub także ich części</translation>
    </message>
    <message>
        <source>Treat the text above as a Regular Expression</source>
        <translation>Traktuj powyższy tekst jako wyrażenie regularne</translation>
    </message>
    <message>
        <source>Regular expression</source>
        <translation>Wyrażenie regularne</translation>
    </message>
    <message>
        <source>Or, if you know how to write regular expressions, then enter your RegExp above and tick this box.</source>
        <translation>Jeśli umiesz pisać wyrażenia regularne, możesz też wpisać wyrażenie powyżej i zaznaczyć to pole.</translation>
    </message>
    <message>
        <source>Search shown values, too</source>
        <translation>Szukaj też w wyświetlanych wartościach</translation>
    </message>
    <message>
        <source>Also look for the text above in the values as the property tree shows them, such as &quot;turned right&quot;</source>
        <translation>Szukaj powyższego tekstu także w wartościach takich, jakie pokazuje drzewo właściwości, np. „turned right”</translation>
    </message>
    <message>
        <source>&amp;Select Folder</source>
        <translation>&amp;Wybierz folder</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>To begin, choose the folder of your photographs. Nothing is searched before you press Select Folder.</source>
        <translation>Na początek wybierz folder ze swoimi zdjęciami. Przeszukiwanie zacznie się dopiero po naciśnięciu „Wybierz folder”.</translation>
    </message>
    <message>
        <source>&amp;Recent</source>
        <translation>&amp;Ostatnie</translation>
    </message>
    <message>
        <source>Folders searched lately</source>
        <translation>Ostatnio przeszukiwane foldery</translation>
    </message>
    <message>
        <source>Searches the folder</source>
        <translation>Przeszukuje folder</translation>
    </message>
    <message>
        <source>Closes the dialog and changes nothing</source>
        <translation>Zamyka okno i niczego nie zmienia</translation>
    </message>
</context>
<context>
    <name>ControlForm</name>
    <message>
        <source>Find Files</source>
        <translation>Znajdź pliki</translation>
    </message>
    <message>
        <source>Select &amp; scan a folder for image files</source>
        <translation>Wybierz i przeszukaj folder ze zdjęciami</translation>
    </message>
    <message>
        <source>List of images found</source>
        <translation>Lista znalezionych zdjęć</translation>
    </message>
    <message>
        <source>Images found</source>
        <translation>Znalezione zdjęcia</translation>
    </message>
    <message>
        <source>Save &amp; show previous image in list</source>
        <translation>Zapisz i pokaż poprzednie zdjęcie z listy</translation>
    </message>
    <message>
        <source>Previous image</source>
        <translation>Poprzednie zdjęcie</translation>
    </message>
    <message>
        <source>Save &amp; show next image in list</source>
        <translation>Zapisz i pokaż następne zdjęcie z listy</translation>
    </message>
    <message>
        <source>Next image</source>
        <translation>Następne zdjęcie</translation>
    </message>
    <message>
        <source>S&amp;lide Show</source>
        <translation>Pokaz s&amp;lajdów</translation>
    </message>
    <message>
        <source>Show files listed in a slide-show</source>
        <translation>Pokaż pliki z listy jako pokaz slajdów</translation>
    </message>
    <message>
        <source>&amp;Batch</source>
        <translation>&amp;Wsadowo</translation>
    </message>
    <message>
        <source>Change all files listed</source>
        <translation>Zmień wszystkie pliki z listy</translation>
    </message>
    <message>
        <source>Your list of favourite keywords</source>
        <translation>Lista ulubionych słów kluczowych</translation>
    </message>
    <message>
        <source>Favourite keywords</source>
        <translation>Ulubione słowa kluczowe</translation>
    </message>
    <message>
        <source>&amp;Keywords</source>
        <translation>Słowa &amp;kluczowe</translation>
    </message>
    <message>
        <source>Load a different keyword list from a file</source>
        <translation>Wczytaj z pliku inną listę słów kluczowych</translation>
    </message>
    <message>
        <source>Drop photographs or folders of them here, or choose Find Files.</source>
        <translation>Upuść tu zdjęcia lub foldery ze zdjęciami albo wybierz „Znajdź pliki”.</translation>
    </message>
    <message>
        <source>Left click to open, right click for properties</source>
        <translation>Kliknij lewym przyciskiem, aby otworzyć, prawym, aby zobaczyć właściwości</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Obraz</translation>
    </message>
    <message>
        <source>OS Properties</source>
        <translation>Właściwości w systemie</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>Tytuł:</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Tytuł</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Komentarze</translation>
    </message>
    <message>
        <source>Subject:</source>
        <translation>Temat:</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Temat</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Słowa kluczowe</translation>
    </message>
    <message>
        <source>Ditto</source>
        <translation>Jak poprzednio</translation>
    </message>
    <message>
        <source>Repeat from previous image</source>
        <translation>Powtórz z poprzedniego zdjęcia</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>Zapi&amp;sz</translation>
    </message>
    <message>
        <source>Save changes made to this file</source>
        <translation>Zapisz zmiany wprowadzone w tym pliku</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>P&amp;rzywróć</translation>
    </message>
    <message>
        <source>Undo ALL changes made to this file</source>
        <translation>Cofnij WSZYSTKIE zmiany wprowadzone w tym pliku</translation>
    </message>
    <message>
        <source>This file has changes that are not saved yet</source>
        <translation>Ten plik ma niezapisane zmiany</translation>
    </message>
    <message>
        <source>Changes not saved</source>
        <translation>Niezapisane zmiany</translation>
    </message>
    <message>
        <source>File Property Tree</source>
        <translation>Drzewo właściwości pliku</translation>
    </message>
    <message>
        <source>File properties</source>
        <translation>Właściwości pliku</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Właściwość</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wartość</translation>
    </message>
    <message>
        <source>Current Node</source>
        <translation>Bieżący węzeł</translation>
    </message>
    <message>
        <source>Name of current file</source>
        <translation>Nazwa bieżącego pliku</translation>
    </message>
    <message>
        <source>Tag number</source>
        <translation>Numer znacznika</translation>
    </message>
    <message>
        <source>Show as Hex?</source>
        <translation>Szesnastkowo</translation>
    </message>
    <message>
        <source>Translate to hexadecimal code?</source>
        <translation>Przedstawić w zapisie szesnastkowym?</translation>
    </message>
    <message>
        <source>Value of property selected in tree</source>
        <translation>Wartość właściwości zaznaczonej w drzewie</translation>
    </message>
    <message>
        <source>Thumbnail</source>
        <translation>Miniatura</translation>
    </message>
    <message>
        <source>Values that this property can have, and what they mean</source>
        <translation>Wartości, które może mieć ta właściwość, i ich znaczenie</translation>
    </message>
    <message>
        <source>Known values</source>
        <translation>Znane wartości</translation>
    </message>
    <message>
        <source>What the value means</source>
        <translation>Znaczenie wartości</translation>
    </message>
    <message>
        <source>Data type</source>
        <translation>Typ danych</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Pomoc</translation>
    </message>
    <message>
        <source>&amp;Add Node</source>
        <translation>&amp;Dodaj węzeł</translation>
    </message>
    <message>
        <source>Add new node</source>
        <translation>Dodaj nowy węzeł</translation>
    </message>
    <message>
        <source>&amp;Delete Node</source>
        <translation>&amp;Usuń węzeł</translation>
    </message>
    <message>
        <source>CAUTION: use at own risk!</source>
        <translation>UWAGA: na własne ryzyko!</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Plik</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Opcje</translation>
    </message>
    <message>
        <source>&amp;Image</source>
        <translation>&amp;Zdjęcie</translation>
    </message>
    <message>
        <source>Save &amp;XML</source>
        <translation>Zapisz &amp;XML</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Przywróć</translation>
    </message>
    <message>
        <source>&amp;What Does It Tell?</source>
        <translation>&amp;Co zdradza zdjęcie?</translation>
    </message>
    <message>
        <source>Lists what the photograph tells of people and places, and deletes what you select.</source>
        <translation>Pokazuje, co zdjęcie zdradza o ludziach i miejscach, i usuwa to, co zaznaczysz.</translation>
    </message>
    <message>
        <source>&amp;Generate Report</source>
        <translation>&amp;Generuj raport</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>Za&amp;kończ</translation>
    </message>
    <message>
        <source>Keep Maker Notes?</source>
        <translation>Zachowuj notatki producenta</translation>
    </message>
    <message>
        <source>Keep Thumbnails?</source>
        <translation>Zachowuj miniatury</translation>
    </message>
    <message>
        <source>Keep Non-standard Exif?</source>
        <translation>Zachowuj niestandardowe dane Exif</translation>
    </message>
    <message>
        <source>Keep Untouched Data?</source>
        <translation>Zachowuj nietknięte dane</translation>
    </message>
    <message>
        <source>Saving changes only what you edited and leaves the rest of the file as it is. Counts from the next file opened.</source>
        <translation>Zapis zmienia tylko to, co było edytowane, a resztę pliku pozostawia bez zmian. Działa od następnego otwartego pliku.</translation>
    </message>
    <message>
        <source>Read Everything?</source>
        <translation>Odczytuj wszystko</translation>
    </message>
    <message>
        <source>Shows texts in any language and the place, all as it was written. Counts from the next file opened.</source>
        <translation>Pokazuje teksty w dowolnym języku oraz miejsce, wszystko tak, jak zostało zapisane. Działa od następnego otwartego pliku.</translation>
    </message>
    <message>
        <source>Show Technical Data?</source>
        <translation>Pokazuj dane techniczne</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Otwórz</translation>
    </message>
    <message>
        <source>OS &amp;Properties</source>
        <translation>&amp;Właściwości w systemie</translation>
    </message>
    <message>
        <source>About</source>
        <translation>O programie</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Spis treści</translation>
    </message>
    <message>
        <source>Photographs and keywords</source>
        <translation>Zdjęcia i słowa kluczowe</translation>
    </message>
    <message>
        <source>Photographs</source>
        <translation>Zdjęcia</translation>
    </message>
    <message>
        <source>Enter inserts the keyword</source>
        <translation>Enter wstawia słowo kluczowe</translation>
    </message>
    <message>
        <source>Picture and its descriptions</source>
        <translation>Obraz i jego opisy</translation>
    </message>
    <message>
        <source>Title of the photograph, as the desktop shows it</source>
        <translation>Tytuł zdjęcia, jaki pokazuje pulpit</translation>
    </message>
    <message>
        <source>Comments on the photograph, as the desktop shows them</source>
        <translation>Komentarze do zdjęcia, jakie pokazuje pulpit</translation>
    </message>
    <message>
        <source>Subject of the photograph, as the desktop shows it</source>
        <translation>Temat zdjęcia, jaki pokazuje pulpit</translation>
    </message>
    <message>
        <source>Keywords of the photograph, as the desktop shows them</source>
        <translation>Słowa kluczowe zdjęcia, jakie pokazuje pulpit</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Właściwości</translation>
    </message>
    <message>
        <source>Property tree</source>
        <translation>Drzewo właściwości</translation>
    </message>
    <message>
        <source>F2 edits the value, Delete deletes the property</source>
        <translation>F2 edytuje wartość, Delete usuwa właściwość</translation>
    </message>
    <message>
        <source>What the selected property is for</source>
        <translation>Do czego służy zaznaczona właściwość</translation>
    </message>
    <message>
        <source>&amp;Recent Folders</source>
        <translation>Ost&amp;atnie foldery</translation>
    </message>
    <message>
        <source>&amp;Find Files</source>
        <translation>&amp;Znajdź pliki</translation>
    </message>
    <message>
        <source>Find W&amp;ords</source>
        <translation>Znajdź sł&amp;owa</translation>
    </message>
    <message>
        <source>Read &amp;Again</source>
        <translation>Wczyta&amp;j ponownie</translation>
    </message>
    <message>
        <source>Arrow keys open the photograph above or below; the focus then moves to the property tree</source>
        <translation>Klawisze strzałek otwierają zdjęcie powyżej lub poniżej; fokus przechodzi potem do drzewa właściwości</translation>
    </message>
</context>
<context>
    <name>DataType</name>
    <message>
        <source>Byte</source>
        <translation>Bajt</translation>
    </message>
    <message>
        <source>String</source>
        <translation>Tekst</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>Liczba krótka</translation>
    </message>
    <message>
        <source>Long</source>
        <translation>Liczba długa</translation>
    </message>
    <message>
        <source>Rational</source>
        <translation>Ułamek</translation>
    </message>
    <message>
        <source>Signed Byte</source>
        <translation>Bajt ze znakiem</translation>
    </message>
    <message>
        <source>Undefined</source>
        <translation>Nieokreślony</translation>
    </message>
    <message>
        <source>Signed Short</source>
        <translation>Liczba krótka ze znakiem</translation>
    </message>
    <message>
        <source>Signed Long</source>
        <translation>Liczba długa ze znakiem</translation>
    </message>
    <message>
        <source>Signed Rational</source>
        <translation>Ułamek ze znakiem</translation>
    </message>
    <message>
        <source>Unicode String</source>
        <translation>Tekst Unicode</translation>
    </message>
    <message>
        <source>Float</source>
        <translation>Liczba pojedynczej precyzji</translation>
    </message>
    <message>
        <source>Double</source>
        <translation>Liczba podwójnej precyzji</translation>
    </message>
    <message>
        <source>Directory Position</source>
        <translation>Położenie katalogu</translation>
    </message>
    <message>
        <source>UTF-8 String</source>
        <translation>Tekst UTF-8</translation>
    </message>
    <message>
        <source>%1 Required</source>
        <translation>%1, wartość wymagana</translation>
    </message>
    <message>
        <source>%1 Protected</source>
        <translation>%1, wartość chroniona</translation>
    </message>
</context>
<context>
    <name>FailureMessages</name>
    <message>
        <source>The report does not cover these files:</source>
        <translation>Raport nie obejmuje tych plików:</translation>
    </message>
    <message>
        <source>There is no such file or folder:</source>
        <translation>Nie ma takiego pliku ani folderu:</translation>
    </message>
    <message numerus="yes">
        <source>and %Ln more</source>
        <translation>
            <numerusform>i jeszcze %Ln</numerusform>
            <numerusform>i jeszcze %Ln</numerusform>
            <numerusform>i jeszcze %Ln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Other folders that could not be read (%Ln):</source>
        <translation>
            <numerusform>Inny folder, którego nie udało się odczytać (%Ln):</numerusform>
            <numerusform>Inne foldery, których nie udało się odczytać (%Ln):</numerusform>
            <numerusform>Inne foldery, których nie udało się odczytać (%Ln):</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>GapKeys</name>
    <message>
        <source>Width: %1</source>
        <translation>Szerokość: %1</translation>
    </message>
    <message>
        <source>Height: %1</source>
        <translation>Wysokość: %1</translation>
    </message>
</context>
<context>
    <name>HelpContents</name>
    <message>
        <source>Unable to display Help Contents. There is no Help associated with this project.</source>
        <translation>Nie można wyświetlić spisu treści pomocy. Do tego programu nie dołączono pomocy.</translation>
    </message>
    <message>
        <source>No program was found that shows web pages.</source>
        <translation>Nie znaleziono programu, który wyświetla strony internetowe.</translation>
    </message>
</context>
<context>
    <name>LeftOutLine</name>
    <message>
        <source>maker notes</source>
        <translation>notatki producenta</translation>
    </message>
    <message>
        <source>thumbnails</source>
        <translation>miniatury</translation>
    </message>
    <message>
        <source>non-standard Exif</source>
        <translation>niestandardowe dane Exif</translation>
    </message>
    <message>
        <source>what is not shown</source>
        <translation>niewyświetlane dane</translation>
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
        <translation>Nieprawidłowe wywołanie procedury lub argument</translation>
    </message>
    <message>
        <source>Overflow</source>
        <translation>Przepełnienie</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>Brak pamięci</translation>
    </message>
    <message>
        <source>Type mismatch</source>
        <translation>Niezgodność typów</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>Nie znaleziono pliku</translation>
    </message>
    <message>
        <source>Device I/O error</source>
        <translation>Błąd we/wy urządzenia</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Dysk jest pełny</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Brak uprawnień</translation>
    </message>
    <message>
        <source>Path/File access error</source>
        <translation>Błąd dostępu do ścieżki lub pliku</translation>
    </message>
    <message>
        <source>Path not found</source>
        <translation>Nie znaleziono ścieżki</translation>
    </message>
    <message>
        <source>Object not set</source>
        <translation>Nie ustawiono obiektu</translation>
    </message>
    <message>
        <source>Unexpected error</source>
        <translation>Nieoczekiwany błąd</translation>
    </message>
    <message>
        <source>It is a folder, not a file</source>
        <translation>To jest folder, a nie plik</translation>
    </message>
    <message>
        <source>It is not a folder</source>
        <translation>To nie jest folder</translation>
    </message>
    <message>
        <source>It is not a regular file</source>
        <translation>To nie jest zwykły plik</translation>
    </message>
    <message>
        <source>There is no folder %1</source>
        <translation>Nie ma folderu %1</translation>
    </message>
    <message>
        <source>Interrupted</source>
        <translation>Przerwano</translation>
    </message>
    <message>
        <source>Not a regular expression: %1: %2 (at character %3)</source>
        <translation>To nie jest wyrażenie regularne: %1: %2 (znak %3)</translation>
    </message>
    <message>
        <source>The regular expression runs too long: %1</source>
        <translation>Wyrażenie regularne działa zbyt długo: %1</translation>
    </message>
    <message>
        <source>The words &quot;%1&quot; cannot be searched for: %2. Characters such as ( * ? have a meaning; put \ before one that stands for itself.</source>
        <translation>Nie można wyszukać słów „%1”: %2. Znaki takie jak ( * ? mają specjalne znaczenie; wstaw \ przed znakiem, który ma oznaczać sam siebie.</translation>
    </message>
    <message>
        <source>File %1<byte value="xd"/>
Line %2 pos %3 <byte value="xd"/>
%4<byte value="xd"/>
%5</source>
        <translation>Plik %1<byte value="xd"/>
Wiersz %2 poz. %3 <byte value="xd"/>
%4<byte value="xd"/>
%5</translation>
    </message>
    <message>
        <source>%1 line:%2 pos:%3 src:%4</source>
        <translation>%1 wiersz: %2 poz.: %3 źródło: %4</translation>
    </message>
    <message>
        <source>Not a valid path: %1</source>
        <translation>Nieprawidłowa ścieżka: %1</translation>
    </message>
    <message>
        <source>The document type &quot;%1&quot; cannot be loaded</source>
        <translation>Nie można wczytać typu dokumentu „%1”</translation>
    </message>
    <message>
        <source>The content does not match the document type</source>
        <translation>Zawartość nie jest zgodna z typem dokumentu</translation>
    </message>
    <message>
        <source>The entity &quot;%1&quot; is not declared</source>
        <translation>Encja „%1” nie jest zadeklarowana</translation>
    </message>
    <message>
        <source>The entity &quot;%1&quot; is outside the document, and is not read</source>
        <translation>Encja „%1” znajduje się poza dokumentem i nie jest odczytywana</translation>
    </message>
    <message>
        <source>The entity cannot be read from %1</source>
        <translation>Nie można odczytać encji z %1</translation>
    </message>
    <message>
        <source>The entities of the document take far more memory than its text</source>
        <translation>Encje dokumentu zajmują znacznie więcej pamięci niż jego tekst</translation>
    </message>
    <message>
        <source>The document includes another one, which is not read</source>
        <translation>Dokument dołącza inny dokument, który nie jest odczytywany</translation>
    </message>
    <message>
        <source>The elements of the document nest too deep</source>
        <translation>Elementy dokumentu są zbyt głęboko zagnieżdżone</translation>
    </message>
    <message>
        <source>The style sheet may not read %1, which is not in its folder</source>
        <translation>Arkusz stylów nie może odczytać %1, bo to plik spoza jego folderu</translation>
    </message>
    <message>
        <source>The style sheet cannot be applied</source>
        <translation>Nie można zastosować arkusza stylów</translation>
    </message>
    <message>
        <source>The style sheet takes far more memory than the documents need</source>
        <translation>Arkusz stylów zajmuje znacznie więcej pamięci, niż wymagają dokumenty</translation>
    </message>
    <message>
        <source>%1  file=%2</source>
        <translation>%1  plik=%2</translation>
    </message>
    <message>
        <source>%2: %1</source>
        <translation>%2: %1</translation>
    </message>
    <message>
        <source>Not a JPEG file - hFFD8 expected at start of file %1</source>
        <translation>To nie jest plik JPEG – oczekiwano hFFD8 na początku pliku %1</translation>
    </message>
    <message>
        <source>Header seems corrupted - unknown Marker %1 %2</source>
        <translation>Nagłówek wygląda na uszkodzony – nieznany marker %1 w pliku %2</translation>
    </message>
    <message>
        <source>No StartOfStream marker found %1</source>
        <translation>Nie znaleziono markera StartOfStream w pliku %1</translation>
    </message>
    <message>
        <source>I don&apos;t know what type of data this node requires - can&apos;t set its value.</source>
        <translation>Nie wiadomo, jakiego typu danych wymaga ten węzeł – nie można ustawić jego wartości.</translation>
    </message>
    <message>
        <source>The image cannot be shown without this node as it is.</source>
        <translation>Bez tego węzła w obecnej postaci nie można wyświetlić obrazu.</translation>
    </message>
    <message>
        <source>This node is required by others and cannot be deleted by itself.</source>
        <translation>Ten węzeł jest potrzebny innym i nie można go usunąć osobno.</translation>
    </message>
    <message>
        <source>Only a document that reads everything has this node; rebuilding reads a basic one.</source>
        <translation>Ten węzeł występuje tylko w dokumencie, w którym odczytano wszystko; przy odbudowie odczytuje się dokument podstawowy.</translation>
    </message>
    <message>
        <source>The tag dictionary has no entry for this node.</source>
        <translation>W słowniku znaczników nie ma wpisu dla tego węzła.</translation>
    </message>
    <message>
        <source>The file does not have this node, and it cannot be created without an entry in the tag dictionary.</source>
        <translation>Plik nie ma tego węzła, a bez wpisu w słowniku znaczników nie można go utworzyć.</translation>
    </message>
    <message numerus="yes">
        <source>%1 nodes of the file have this path.</source>
        <translation>
            <numerusform>%1 węzeł pliku ma tę ścieżkę.</numerusform>
            <numerusform>%1 węzły pliku mają tę ścieżkę.</numerusform>
            <numerusform>%1 węzłów pliku ma tę ścieżkę.</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;%1&quot; would be written as &quot;?&quot;: in a basic document, %2 holds Western European texts only.</source>
        <translation>Zamiast „%1” zapisano by „?”: w dokumencie podstawowym właściwość „%2” może zawierać tylko teksty zachodnioeuropejskie.</translation>
    </message>
    <message>
        <source>Create node failed %1</source>
        <translation>Nie udało się utworzyć węzła %1</translation>
    </message>
    <message>
        <source>A document that reads everything cannot be rebuilt; make one with xml, without --full.</source>
        <translation>Dokumentu, w którym odczytano wszystko, nie można użyć do odbudowy; utwórz inny poleceniem xml, bez --full.</translation>
    </message>
    <message>
        <source>Write to %1</source>
        <translation>Zapis do pliku %1</translation>
    </message>
    <message>
        <source>%1 write failed</source>
        <translation>Nie udał się zapis do pliku %1</translation>
    </message>
    <message>
        <source>%1 transfer of image from existing file failed</source>
        <translation>Nie udało się przenieść obrazu z istniejącego pliku do pliku %1</translation>
    </message>
    <message>
        <source>Delete old file %1</source>
        <translation>Usuwanie starego pliku %1</translation>
    </message>
    <message>
        <source>Rename file %1 to %2</source>
        <translation>Zmiana nazwy pliku %1 na %2</translation>
    </message>
    <message>
        <source>Another program has moved or replaced the new version</source>
        <translation>Inny program przeniósł lub zastąpił nową wersję</translation>
    </message>
    <message>
        <source>%1. The new version is in %2</source>
        <translation>%1. Nowa wersja jest w pliku %2</translation>
    </message>
    <message>
        <source>It is saved, but not known to be on disk. %1</source>
        <translation>Plik zapisano, ale nie wiadomo, czy jest już na dysku. %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be saved in %2</source>
        <translation>Nie udało się zapisać właściwości „%1” w pliku %2</translation>
    </message>
    <message>
        <source>The text has &quot;]]&gt;&quot;, which could not be read back</source>
        <translation>Tekst zawiera „]]&gt;”, czego nie dałoby się ponownie odczytać</translation>
    </message>
    <message>
        <source>The text has a control character that could not be read back</source>
        <translation>Tekst zawiera znak sterujący, którego nie dałoby się ponownie odczytać</translation>
    </message>
    <message>
        <source>The text has elements, which must stand in a CDATA section to be kept</source>
        <translation>Tekst zawiera elementy, które muszą stać w sekcji CDATA, aby zostały zachowane</translation>
    </message>
    <message>
        <source>A character between the changed ones could not be read, so it cannot be written.</source>
        <translation>Nie udało się odczytać znaku między zmienionymi, więc nie można go zapisać.</translation>
    </message>
    <message>
        <source>The id of an IFD element is not four hexadecimal digits: %1</source>
        <translation>Atrybut id elementu IFD to nie cztery cyfry szesnastkowe: %1</translation>
    </message>
    <message>
        <source>The document has more than one IMG element</source>
        <translation>Dokument ma więcej niż jeden element IMG</translation>
    </message>
    <message>
        <source>The file was changed after it was read</source>
        <translation>Plik zmienił się po odczytaniu</translation>
    </message>
    <message>
        <source>The file has another picture now, which needs tables that the document does not have</source>
        <translation>W pliku jest teraz inny obraz, który wymaga tablic, jakich nie ma w dokumencie</translation>
    </message>
    <message>
        <source>The new version could not be read back: %1</source>
        <translation>Nie udało się ponownie odczytać nowej wersji: %1</translation>
    </message>
    <message>
        <source>Temp file write failed</source>
        <translation>Nie udał się zapis do pliku tymczasowego</translation>
    </message>
    <message>
        <source>Temp file write integer %1</source>
        <translation>Zapis liczby %1 do pliku tymczasowego</translation>
    </message>
    <message>
        <source>Temp file write long %1</source>
        <translation>Zapis liczby długiej %1 do pliku tymczasowego</translation>
    </message>
    <message>
        <source>Temp file write string</source>
        <translation>Zapis tekstu do pliku tymczasowego</translation>
    </message>
    <message numerus="yes">
        <source>The segment would have %1 bytes, but its length says %2</source>
        <translation>
            <numerusform>Segment miałby %1 bajt, ale jego długość określono jako %2</numerusform>
            <numerusform>Segment miałby %1 bajty, ale jego długość określono jako %2</numerusform>
            <numerusform>Segment miałby %1 bajtów, ale jego długość określono jako %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The value would have %1 bytes instead of %2</source>
        <translation>
            <numerusform>Wartość miałaby %1 bajt zamiast %2</numerusform>
            <numerusform>Wartość miałaby %1 bajty zamiast %2</numerusform>
            <numerusform>Wartość miałaby %1 bajtów zamiast %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Exif section - calculate data length</source>
        <translation>Sekcja Exif – obliczanie długości danych</translation>
    </message>
    <message>
        <source>Exif Offset Calculation failed</source>
        <translation>Nie udało się obliczyć przesunięć Exif</translation>
    </message>
    <message>
        <source>Can&apos;t tie up the MakerNote to its entry in the header (!??)</source>
        <translation>Nie można powiązać danych MakerNote z ich wpisem w nagłówku (!??)</translation>
    </message>
    <message>
        <source>Exif write failed</source>
        <translation>Nie udało się zapisać danych Exif</translation>
    </message>
    <message>
        <source>Data format %1 error:%2</source>
        <translation>Błąd formatu danych %1: %2</translation>
    </message>
    <message>
        <source>The image cannot be shown without its scan header as the last segment</source>
        <translation>Nie można wyświetlić obrazu, jeśli ostatnim segmentem nie jest jego nagłówek skanu</translation>
    </message>
    <message>
        <source>The segments of the file do not lead to its image</source>
        <translation>Segmenty pliku nie prowadzą do jego obrazu</translation>
    </message>
    <message>
        <source>The segment would be longer than 65,535 bytes</source>
        <translation>Segment byłby dłuższy niż 65&#xa0;535 bajtów</translation>
    </message>
    <message numerus="yes">
        <source>The Exif segment would be %1 bytes longer than the 65,535 that it has room for; rebuilding (&quot;Keep Untouched Data?&quot; off, --rebuild) may make it shorter</source>
        <translation>
            <numerusform>Segment Exif przekroczyłby limit 65&#xa0;535 bajtów o %1 bajt; odbudowa (opcja „Zachowuj nietknięte dane” wyłączona, --rebuild) może go skrócić</numerusform>
            <numerusform>Segment Exif przekroczyłby limit 65&#xa0;535 bajtów o %1 bajty; odbudowa (opcja „Zachowuj nietknięte dane” wyłączona, --rebuild) może go skrócić</numerusform>
            <numerusform>Segment Exif przekroczyłby limit 65&#xa0;535 bajtów o %1 bajtów; odbudowa (opcja „Zachowuj nietknięte dane” wyłączona, --rebuild) może go skrócić</numerusform>
        </translation>
    </message>
    <message>
        <source>The Exif directories name the same bytes again and again</source>
        <translation>Katalogi Exif wielokrotnie wskazują te same bajty</translation>
    </message>
    <message>
        <source>The directory could not be read, so that nothing in it can be changed</source>
        <translation>Nie udało się odczytać katalogu, więc niczego w nim nie można zmienić</translation>
    </message>
    <message>
        <source>The file has one that could not be read</source>
        <translation>Plik już to zawiera, ale nie udało się tego odczytać</translation>
    </message>
    <message>
        <source>The text of this entry is the place of what it leads to</source>
        <translation>Tekst tego wpisu to położenie danych, do których wpis prowadzi</translation>
    </message>
    <message>
        <source>A thumbnail in strips cannot be changed</source>
        <translation>Nie można zmienić miniatury zapisanej w paskach</translation>
    </message>
    <message>
        <source>Four bytes or fewer would stand where their place is looked for</source>
        <translation>Cztery bajty lub mniej trafiłyby tam, gdzie oczekuje się ich położenia</translation>
    </message>
    <message>
        <source>The value is not a run of pairs of hexadecimal digits</source>
        <translation>Wartość nie jest ciągiem par cyfr szesnastkowych</translation>
    </message>
    <message>
        <source>The value stands outside its entry, and the document shows only where</source>
        <translation>Wartość znajduje się poza swoim wpisem, a dokument pokazuje tylko jej położenie</translation>
    </message>
    <message>
        <source>The value has to be four bytes</source>
        <translation>Wartość musi mieć cztery bajty</translation>
    </message>
    <message>
        <source>Values of this data type cannot be changed</source>
        <translation>Nie można zmieniać wartości tego typu danych</translation>
    </message>
    <message>
        <source>The old value is not all in the Exif segment</source>
        <translation>Stara wartość nie znajduje się w całości w segmencie Exif</translation>
    </message>
    <message>
        <source>%1 would read %2 instead of %3</source>
        <translation>%1 – byłoby %2 zamiast %3</translation>
    </message>
    <message>
        <source>%1 would have type %2 and count %3 instead of type %4 and count %5</source>
        <translation>%1 – byłby typ %2 (liczba wartości: %3) zamiast typu %4 (liczba wartości: %5)</translation>
    </message>
    <message>
        <source>%1 would stand at %2 instead of %3</source>
        <translation>%1 – położenie wynosiłoby %2 zamiast %3</translation>
    </message>
    <message>
        <source>%1 would be lost</source>
        <translation>%1 – utracono by</translation>
    </message>
    <message>
        <source>%1 would be new</source>
        <translation>%1 – byłby to nowy element</translation>
    </message>
    <message>
        <source>%1 would not be the same</source>
        <translation>%1 – powstałaby różnica</translation>
    </message>
    <message>
        <source>%1 would have another link to the next directory</source>
        <translation>%1 – byłoby inne odesłanie do następnego katalogu</translation>
    </message>
    <message>
        <source>%1 would not have the entries that it should</source>
        <translation>%1 – wpisy byłyby inne, niż powinny</translation>
    </message>
    <message numerus="yes">
        <source>The file would have %1 segments instead of %2</source>
        <translation>
            <numerusform>Plik miałby %1 segment zamiast %2</numerusform>
            <numerusform>Plik miałby %1 segmenty zamiast %2</numerusform>
            <numerusform>Plik miałby %1 segmentów zamiast %2</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 reads %2 instead of %3</source>
        <translation>%1 – jest %2 zamiast %3</translation>
    </message>
    <message>
        <source>%1 has type %2 and count %3 instead of type %4 and count %5</source>
        <translation>%1 – jest typ %2 (liczba wartości: %3) zamiast typu %4 (liczba wartości: %5)</translation>
    </message>
    <message>
        <source>%1 stands at %2 instead of %3</source>
        <translation>%1 – położenie wynosi %2 zamiast %3</translation>
    </message>
    <message>
        <source>%1 is lost</source>
        <translation>%1 – utracono</translation>
    </message>
    <message>
        <source>%1 is new</source>
        <translation>%1 – to nowy element</translation>
    </message>
    <message>
        <source>%1 is not the same</source>
        <translation>%1 – powstała różnica</translation>
    </message>
    <message>
        <source>%1 has another link to the next directory</source>
        <translation>%1 – jest inne odesłanie do następnego katalogu</translation>
    </message>
    <message>
        <source>%1 does not have the entries that it should</source>
        <translation>%1 – wpisy są inne, niż powinny</translation>
    </message>
    <message numerus="yes">
        <source>The file has %1 segments instead of %2</source>
        <translation>
            <numerusform>Plik ma %1 segment zamiast %2</numerusform>
            <numerusform>Plik ma %1 segmenty zamiast %2</numerusform>
            <numerusform>Plik ma %1 segmentów zamiast %2</numerusform>
        </translation>
    </message>
    <message>
        <source>The header of the Exif segment</source>
        <translation>Nagłówek segmentu Exif</translation>
    </message>
    <message>
        <source>The Exif segment</source>
        <translation>Segment Exif</translation>
    </message>
    <message>
        <source>The image at %1</source>
        <translation>Obraz w %1</translation>
    </message>
    <message>
        <source>The segment %1</source>
        <translation>Segment %1</translation>
    </message>
    <message>
        <source>The picture, or what follows it,</source>
        <translation>Obraz lub dane po nim</translation>
    </message>
    <message>
        <source>%1 shared bytes with another value, which still has them</source>
        <translation>%1 – bajty wspólne z inną wartością, która nadal je zawiera</translation>
    </message>
    <message>
        <source>The data after the picture names positions in the file, which are others now</source>
        <translation>Dane po obrazie podają położenia w pliku, które są teraz inne</translation>
    </message>
    <message numerus="yes">
        <source>%1 values changed, %2 unchanged, picture identical.</source>
        <translation>
            <numerusform>%1 zmieniona wartość, %2 bez zmian, obraz identyczny.</numerusform>
            <numerusform>%1 zmienione wartości, %2 bez zmian, obraz identyczny.</numerusform>
            <numerusform>%1 zmienionych wartości, %2 bez zmian, obraz identyczny.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1. The original is kept as %2</source>
        <translation>%1. Oryginał zachowano jako %2</translation>
    </message>
    <message>
        <source>%1. %2 was there already and stays as the original</source>
        <translation>%1. Plik %2 już istniał i pozostaje oryginałem</translation>
    </message>
    <message numerus="yes">
        <source>%1, and %2 more</source>
        <translation>
            <numerusform>%1 (oraz %2 inna strata)</numerusform>
            <numerusform>%1 (oraz %2 inne straty)</numerusform>
            <numerusform>%1 (oraz %2 innych strat)</numerusform>
        </translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Lokalizacja</translation>
    </message>
    <message>
        <source>Serial numbers</source>
        <translation>Numery seryjne</translation>
    </message>
    <message>
        <source>Names of people</source>
        <translation>Imiona i nazwiska</translation>
    </message>
    <message>
        <source>Copyright notice</source>
        <translation>Informacja o prawach autorskich</translation>
    </message>
    <message>
        <source>Titles, comments and keywords</source>
        <translation>Tytuły, komentarze i słowa kluczowe</translation>
    </message>
    <message>
        <source>Unique identifiers</source>
        <translation>Unikatowe identyfikatory</translation>
    </message>
    <message>
        <source>Maker&apos;s notes</source>
        <translation>Notatki producenta</translation>
    </message>
    <message>
        <source>Thumbnail that is not known to show the picture</source>
        <translation>Miniatura, która być może nie przedstawia tego obrazu</translation>
    </message>
    <message>
        <source>XMP</source>
        <translation>XMP</translation>
    </message>
    <message>
        <source>IPTC and Photoshop data</source>
        <translation>Dane IPTC i Photoshop</translation>
    </message>
    <message>
        <source>Comment segments</source>
        <translation>Segmenty komentarza</translation>
    </message>
    <message>
        <source>Other application segments</source>
        <translation>Inne segmenty aplikacji</translation>
    </message>
    <message>
        <source>Exif data that the program does not know</source>
        <translation>Dane Exif nieznane programowi</translation>
    </message>
    <message>
        <source>What follows the picture</source>
        <translation>Dane po obrazie</translation>
    </message>
    <message>
        <source>Unknown tag %1 in %2</source>
        <translation>Nieznany znacznik %1 w %2</translation>
    </message>
    <message>
        <source>Extended XMP</source>
        <translation>Rozszerzony XMP</translation>
    </message>
    <message>
        <source>Photoshop and IPTC block</source>
        <translation>Blok Photoshop i IPTC</translation>
    </message>
    <message>
        <source>Comment: %1</source>
        <translation>Komentarz: %1</translation>
    </message>
    <message>
        <source>Application segment %1 %2</source>
        <translation>Segment aplikacji %1 %2</translation>
    </message>
    <message>
        <source>Preview in the JFIF header</source>
        <translation>Podgląd w nagłówku JFIF</translation>
    </message>
    <message>
        <source>Preview in a JFIF extension</source>
        <translation>Podgląd w rozszerzeniu JFIF</translation>
    </message>
    <message>
        <source>Index of further pictures</source>
        <translation>Indeks dalszych obrazów</translation>
    </message>
    <message>
        <source>Second Exif segment</source>
        <translation>Drugi segment Exif</translation>
    </message>
    <message>
        <source>Exif data that cannot be read in full</source>
        <translation>Dane Exif, których nie można odczytać w całości</translation>
    </message>
    <message>
        <source>Bytes in the Exif data that nothing leads to</source>
        <translation>Bajty w danych Exif, do których nic nie prowadzi</translation>
    </message>
    <message>
        <source>Directory %1, which is not shown</source>
        <translation>Niewyświetlany katalog %1</translation>
    </message>
    <message>
        <source>Thumbnail with other proportions than the picture</source>
        <translation>Miniatura o innych proporcjach niż obraz</translation>
    </message>
    <message>
        <source>Thumbnail that shows something else than the picture</source>
        <translation>Miniatura przedstawiająca coś innego niż obraz</translation>
    </message>
    <message>
        <source>Thumbnail that cannot be compared with the picture</source>
        <translation>Miniatura, której nie można porównać z obrazem</translation>
    </message>
    <message>
        <source>Another picture</source>
        <translation>Inny obraz</translation>
    </message>
    <message>
        <source>A film</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>Data of an unknown kind</source>
        <translation>Dane nieznanego rodzaju</translation>
    </message>
    <message>
        <source>The picture has no end, so nothing can be said about what follows it</source>
        <translation>Obraz nie ma zakończenia, więc nie wiadomo, co po nim następuje</translation>
    </message>
    <message>
        <source>after the picture</source>
        <translation>po obrazie</translation>
    </message>
    <message>
        <source>inside the image data</source>
        <translation>wewnątrz danych obrazu</translation>
    </message>
    <message>
        <source>It stays, because the image data is never changed</source>
        <translation>Pozostaje, bo danych obrazu nigdy się nie zmienia</translation>
    </message>
    <message>
        <source>It stays, because it cannot be told from the picture</source>
        <translation>Pozostaje, bo nie można tego odróżnić od obrazu</translation>
    </message>
    <message>
        <source>It goes only with the whole Exif data</source>
        <translation>Zniknie tylko razem z całymi danymi Exif</translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 bytes, %3</source>
        <translation>
            <numerusform>%1, %2 bajt, %3</numerusform>
            <numerusform>%1, %2 bajty, %3</numerusform>
            <numerusform>%1, %2 bajtów, %3</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 bytes, %3; the program cannot look into it</source>
        <translation>
            <numerusform>%1, %2 bajt, %3; program nie może odczytać zawartości</numerusform>
            <numerusform>%1, %2 bajty, %3; program nie może odczytać zawartości</numerusform>
            <numerusform>%1, %2 bajtów, %3; program nie może odczytać zawartości</numerusform>
        </translation>
    </message>
    <message>
        <source>%1. %2.</source>
        <translation>%1. %2.</translation>
    </message>
    <message>
        <source>Nothing was found that identifies a person or a place</source>
        <translation>Nie znaleziono niczego, co wskazywałoby na osobę lub miejsce</translation>
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
        <translation>nieskończoność</translation>
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
        <translation>%1%</translation>
    </message>
    <message>
        <source>%1 hPa</source>
        <translation>%1 hPa</translation>
    </message>
    <message numerus="yes">
        <source>%1 bytes</source>
        <translation>
            <numerusform>%1 bajt</numerusform>
            <numerusform>%1 bajty</numerusform>
            <numerusform>%1 bajtów</numerusform>
        </translation>
    </message>
    <message>
        <source>The root element is %1, not JPEG</source>
        <translation>Elementem głównym jest %1, a nie JPEG</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>Nie znaleziono folderu</translation>
    </message>
    <message>
        <source>No files found with search criteria specified.  Click &apos;Find Files&apos; button to try again.</source>
        <translation>Nie znaleziono plików spełniających podane kryteria. Kliknij przycisk „Znajdź pliki”, aby spróbować ponownie.</translation>
    </message>
    <message>
        <source>List of files found (%1)</source>
        <translation>Lista znalezionych plików (%1)</translation>
    </message>
    <message>
        <source>Checking file contents</source>
        <translation>Sprawdzanie zawartości plików</translation>
    </message>
    <message numerus="yes">
        <source>%1 files could not be checked. The first: %2</source>
        <translation>
            <numerusform>Nie udało się sprawdzić %1 pliku. Pierwszy: %2</numerusform>
            <numerusform>Nie udało się sprawdzić %1 plików. Pierwszy: %2</numerusform>
            <numerusform>Nie udało się sprawdzić %1 plików. Pierwszy: %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The search ended early, because %1 files could not be checked. The first: %2</source>
        <translation>
            <numerusform>Wyszukiwanie zakończono przedwcześnie, bo nie udało się sprawdzić %1 pliku. Pierwszy: %2</numerusform>
            <numerusform>Wyszukiwanie zakończono przedwcześnie, bo nie udało się sprawdzić %1 plików. Pierwszy: %2</numerusform>
            <numerusform>Wyszukiwanie zakończono przedwcześnie, bo nie udało się sprawdzić %1 plików. Pierwszy: %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Open File %1</source>
        <translation>Otwieranie pliku %1</translation>
    </message>
    <message>
        <source>Read File %1</source>
        <translation>Odczyt pliku %1</translation>
    </message>
    <message>
        <source>Create file %1</source>
        <translation>Tworzenie pliku %1</translation>
    </message>
    <message>
        <source>Write file %1</source>
        <translation>Zapis pliku %1</translation>
    </message>
    <message>
        <source>Save XML File %1</source>
        <translation>Zapis pliku XML %1</translation>
    </message>
    <message>
        <source>Internal XML document corrupt</source>
        <translation>Wewnętrzny dokument XML jest uszkodzony</translation>
    </message>
    <message>
        <source>Transform XML</source>
        <translation>Przekształcanie XML</translation>
    </message>
    <message>
        <source>loadXML</source>
        <translation>Wczytywanie XML</translation>
    </message>
    <message>
        <source>Internal JpegXml document error</source>
        <translation>Błąd wewnętrznego dokumentu JpegXml</translation>
    </message>
    <message>
        <source>Invalid picture</source>
        <translation>Nieprawidłowy obraz</translation>
    </message>
    <message>
        <source>Invalid thumbnail</source>
        <translation>Nieprawidłowa miniatura</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Otwieranie %1</translation>
    </message>
    <message>
        <source>No program was found that opens it</source>
        <translation>Nie znaleziono programu, który to otwiera</translation>
    </message>
    <message>
        <source>The document has other frames or tables than the file, which would change the picture</source>
        <translation>Dokument ma inne ramki lub tablice niż plik, co zmieniłoby obraz</translation>
    </message>
</context>
<context>
    <name>NodeAddForm</name>
    <message>
        <source>Node Add</source>
        <translation>Dodawanie węzła</translation>
    </message>
    <message>
        <source>Select the Node to add to the image</source>
        <translation>Wybierz węzeł, który chcesz dodać do zdjęcia</translation>
    </message>
    <message>
        <source>&amp;Node</source>
        <translation>&amp;Węzeł</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>Węzeł</translation>
    </message>
    <message>
        <source>&amp;Add Node</source>
        <translation>&amp;Dodaj węzeł</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Anuluj</translation>
    </message>
    <message>
        <source>The property to add</source>
        <translation>Właściwość, która zostanie dodana</translation>
    </message>
    <message>
        <source>Adds the selected property to the photograph</source>
        <translation>Dodaje zaznaczoną właściwość do zdjęcia</translation>
    </message>
    <message>
        <source>Closes the dialog and adds nothing</source>
        <translation>Zamyka okno i niczego nie dodaje</translation>
    </message>
</context>
<context>
    <name>PrivateForm</name>
    <message>
        <source>What Does It Tell?</source>
        <translation>Co zdradza zdjęcie?</translation>
    </message>
    <message>
        <source>This is what the &amp;photograph tells of people and places. Select what you want to delete; it is gone from the file when you save.</source>
        <translation>Oto, co z&amp;djęcie zdradza o ludziach i miejscach. Zaznacz, co chcesz usunąć; zniknie to z pliku po zapisaniu.</translation>
    </message>
    <message>
        <source>What the photograph tells</source>
        <translation>Co zdradza zdjęcie</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Co</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>Bajty</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>Gdzie</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Uwaga</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Zaznacz &amp;wszystko</translation>
    </message>
    <message>
        <source>&amp;Delete Selected</source>
        <translation>&amp;Usuń zaznaczone</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Zamknij</translation>
    </message>
    <message>
        <source>The space bar ticks what is to be deleted</source>
        <translation>Spacja zaznacza to, co ma zostać usunięte</translation>
    </message>
    <message>
        <source>Ticks everything that can be deleted</source>
        <translation>Zaznacza wszystko, co można usunąć</translation>
    </message>
    <message>
        <source>Deletes what is ticked; it is gone from the file when you save</source>
        <translation>Usuwa to, co zaznaczone; z pliku zniknie to po zapisaniu</translation>
    </message>
    <message>
        <source>Closes the dialog and deletes nothing</source>
        <translation>Zamyka okno i niczego nie usuwa</translation>
    </message>
</context>
<context>
    <name>ProgressForm</name>
    <message>
        <source>Progress</source>
        <translation>Postęp</translation>
    </message>
    <message>
        <source>Files done</source>
        <translation>Gotowe pliki</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Stops before the next file; what is done stays done</source>
        <translation>Zatrzymuje przed następnym plikiem; co zrobiono, pozostaje</translation>
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
        <translation>&amp;Tak</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nie</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>en</source>
        <extracomment>The code of the language that you translate into, such as &quot;de&quot; or &quot;zh-CN&quot;</extracomment>
        <translation>pl</translation>
    </message>
    <message numerus="yes">
        <source>%n photographs</source>
        <translation>
            <numerusform>%n zdjęcie</numerusform>
            <numerusform>%n zdjęcia</numerusform>
            <numerusform>%n zdjęć</numerusform>
        </translation>
    </message>
    <message>
        <source>Shots</source>
        <extracomment>The photographs that were taken: the title of a table</extracomment>
        <translation>Zdjęcia</translation>
    </message>
    <message>
        <source>Photograph</source>
        <translation>Zdjęcie</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Aparat</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>Obiektyw</translation>
    </message>
    <message>
        <source>Time</source>
        <extracomment>Exposure time</extracomment>
        <translation>Czas</translation>
    </message>
    <message>
        <source>Aperture</source>
        <translation>Przysłona</translation>
    </message>
    <message>
        <source>ISO</source>
        <translation>ISO</translation>
    </message>
    <message>
        <source>Focal length</source>
        <translation>Ogniskowa</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Miejsce</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statystyka</translation>
    </message>
    <message>
        <source>Sensitivity</source>
        <translation>Czułość</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Miesiąc</translation>
    </message>
    <message>
        <source>not known</source>
        <extracomment>A camera, a focal length, a sensitivity or a month</extracomment>
        <translation>brak danych</translation>
    </message>
</context>
<context>
    <name>SlideForm</name>
    <message>
        <source>Slide Show</source>
        <translation>Pokaz slajdów</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Obraz</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Szczegóły</translation>
    </message>
</context>
<context>
    <name>SlideShowOptionForm</name>
    <message>
        <source>Slide Show</source>
        <translation>Pokaz slajdów</translation>
    </message>
    <message>
        <source>Full screen?</source>
        <translation>Pełny ekran</translation>
    </message>
    <message>
        <source>Show Slide show full screen or in a window?</source>
        <translation>Czy wyświetlać pokaz na pełnym ekranie, czy w oknie?</translation>
    </message>
    <message>
        <source>Resize large images?</source>
        <translation>Dopasuj duże zdjęcia</translation>
    </message>
    <message>
        <source>Resize large images to fit the slide window?</source>
        <translation>Dopasować duże zdjęcia do okna pokazu?</translation>
    </message>
    <message>
        <source>Show Details?</source>
        <translation>Pokazuj szczegóły</translation>
    </message>
    <message>
        <source>Show details fo each file as it displays</source>
        <translation>Pokazuj szczegóły każdego wyświetlanego pliku</translation>
    </message>
    <message>
        <source>Seconds/Slide</source>
        <translation>Sekundy na slajd</translation>
    </message>
    <message>
        <source>Number of seconds to show each  image. Enter 0 (zero) for manual control.</source>
        <translation>Czas wyświetlania każdego zdjęcia w sekundach. Wpisz 0 (zero), aby przełączać ręcznie.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Starts the slide show</source>
        <translation>Uruchamia pokaz slajdów</translation>
    </message>
    <message>
        <source>Closes the dialog and starts no show</source>
        <translation>Zamyka okno i nie uruchamia pokazu</translation>
    </message>
</context>
<context>
    <name>ValueLine</name>
    <message>
        <source>Only whole numbers from 0 to 65535 can be written.</source>
        <translation>Można zapisać tylko liczby całkowite od 0 do 65535.</translation>
    </message>
    <message>
        <source>Only whole numbers from 0 to 4294967295 can be written.</source>
        <translation>Można zapisać tylko liczby całkowite od 0 do 4294967295.</translation>
    </message>
    <message>
        <source>Only numbers such as 2.5 can be written.</source>
        <translation>Można zapisać tylko liczby takie jak 2.5.</translation>
    </message>
    <message>
        <source>Only whole numbers from -32768 to 32767 can be written.</source>
        <translation>Można zapisać tylko liczby całkowite od -32768 do 32767.</translation>
    </message>
    <message>
        <source>Only whole numbers from -2147483648 to 2147483647 can be written.</source>
        <translation>Można zapisać tylko liczby całkowite od -2147483648 do 2147483647.</translation>
    </message>
    <message>
        <source>Only fractions such as 1/125, up to 4294967295, can be written.</source>
        <translation>Można zapisać tylko ułamki takie jak 1/125, do 4294967295.</translation>
    </message>
    <message>
        <source>Only fractions such as -1/3, up to 2147483647, can be written.</source>
        <translation>Można zapisać tylko ułamki takie jak -1/3, do 2147483647.</translation>
    </message>
    <message>
        <source>Cannot be written: %1</source>
        <translation>Nie można zapisać: %1</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Shows and edits the metadata of JPEG files.</source>
        <translation>Pokazuje i edytuje metadane plików JPEG.</translation>
    </message>
    <message>
        <source>Photographs to list, and folders of them</source>
        <translation>Zdjęcia, które mają trafić na listę, i foldery z nimi</translation>
    </message>
</context>
<context>
    <name>ovisto::AboutForm</name>
    <message>
        <source>Version %1</source>
        <translation>Wersja %1</translation>
    </message>
    <message>
        <source>Made with %1.</source>
        <translation>Wykorzystuje: %1.</translation>
    </message>
    <message>
        <source>System: %1</source>
        <translation>System: %1</translation>
    </message>
    <message>
        <source>Kernel: %1 %2</source>
        <translation>Jądro: %1 %2</translation>
    </message>
    <message>
        <source>Computer: %1</source>
        <translation>Komputer: %1</translation>
    </message>
    <message numerus="yes">
        <source>Processor: %1, %Ln cores</source>
        <translation>
            <numerusform>Procesor: %1, %Ln rdzeń</numerusform>
            <numerusform>Procesor: %1, %Ln rdzenie</numerusform>
            <numerusform>Procesor: %1, %Ln rdzeni</numerusform>
        </translation>
    </message>
    <message>
        <source>Window system: %1</source>
        <translation>System okienkowy: %1</translation>
    </message>
    <message>
        <source>Screen: %1 x %2</source>
        <translation>Ekran: %1 × %2</translation>
    </message>
</context>
<context>
    <name>ovisto::AwakeScreen</name>
    <message>
        <source>A slide show is running</source>
        <translation>Trwa pokaz slajdów</translation>
    </message>
</context>
<context>
    <name>ovisto::BatchForm</name>
    <message numerus="yes">
        <source>The list has %Ln files.</source>
        <translation>
            <numerusform>Na liście jest %Ln plik.</numerusform>
            <numerusform>Na liście są %Ln pliki.</numerusform>
            <numerusform>Na liście jest %Ln plików.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ovisto::BatchResults</name>
    <message>
        <source>failed: %1</source>
        <translation>błąd: %1</translation>
    </message>
    <message>
        <source>not reached</source>
        <translation>nieprzetworzony</translation>
    </message>
    <message>
        <source>unchanged</source>
        <translation>bez zmian</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>zmieniony</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Plik</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Wynik</translation>
    </message>
</context>
<context>
    <name>ovisto::ControlForm</name>
    <message>
        <source>Goes with &quot;Keep Untouched Data?&quot;: what is written anew is read in the basic way.</source>
        <translation>Działa tylko z opcją „Zachowuj nietknięte dane”: to, co zapisuje się od nowa, odczytuje się w sposób podstawowy.</translation>
    </message>
</context>
<context>
    <name>ovisto::Editor</name>
    <message>
        <source>Metadata saved as %1</source>
        <translation>Metadane zapisano jako %1</translation>
    </message>
    <message>
        <source>All previous edits have been ignored, except for<byte value="xd"/>
nodes removed according to the Options menu.</source>
        <translation>Wszystkie wcześniejsze zmiany odrzucono, z wyjątkiem<byte value="xd"/>
węzłów usuniętych zgodnie z menu Opcje.</translation>
    </message>
    <message>
        <source>Everything has to be read first. Switch on &quot;Keep Untouched Data?&quot; and<byte value="xd"/>
&quot;Read Everything?&quot; in the Options menu, and open the file again.</source>
        <translation>Najpierw trzeba odczytać wszystko. Włącz „Zachowuj nietknięte dane”<byte value="xd"/>
oraz „Odczytuj wszystko” w menu Opcje i ponownie otwórz plik.</translation>
    </message>
    <message>
        <source>Save Changes to file %1?</source>
        <translation>Zapisać zmiany w pliku %1?</translation>
    </message>
    <message>
        <source>Another program changed the file %1 after it was opened here.<byte value="xd"/>
<byte value="xd"/>
Save Over It: the file gets all values as they are shown here.<byte value="xd"/>
Read It Again: what you changed here is given up, and the file is shown as it is now.</source>
        <translation>Inny program zmienił plik %1 po otwarciu go tutaj.<byte value="xd"/>
<byte value="xd"/>
Zapisz mimo to: plik otrzyma wszystkie wartości tak, jak są tu pokazane.<byte value="xd"/>
Wczytaj ponownie: wprowadzone tu zmiany przepadną, a plik zostanie pokazany w obecnej postaci.</translation>
    </message>
    <message>
        <source>&amp;Save Over It</source>
        <translation>&amp;Zapisz mimo to</translation>
    </message>
    <message>
        <source>&amp;Read It Again</source>
        <translation>&amp;Wczytaj ponownie</translation>
    </message>
    <message>
        <source>%1 saved: %2</source>
        <translation>Zapisano %1: %2</translation>
    </message>
    <message>
        <source>Lost, as &quot;Keep Untouched Data?&quot; is off: %1</source>
        <translation>Utracono dane, bo opcja „Zachowuj nietknięte dane” jest wyłączona: %1</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Odrzuć</translation>
    </message>
    <message>
        <source>Discard the changes to file %1 and read it again?</source>
        <translation>Odrzucić zmiany w pliku %1 i wczytać go ponownie?</translation>
    </message>
</context>
<context>
    <name>ovisto::FileListPane</name>
    <message>
        <source>The folder %1 is not there. Nothing was removed from the list.<byte value="xd"/>
Check that the disk or card is connected, and click the photograph again.</source>
        <translation>Nie ma folderu %1. Niczego nie usunięto z listy.<byte value="xd"/>
Sprawdź, czy podłączono dysk lub kartę, i ponownie kliknij zdjęcie.</translation>
    </message>
</context>
<context>
    <name>ovisto::GapMark</name>
    <message>
        <source>Arrow keys move the gap, F8 goes to the next one, Esc goes back</source>
        <translation>Strzałki przesuwają podział, F8 przechodzi do następnego, Esc wraca</translation>
    </message>
</context>
<context>
    <name>ovisto::KeywordPane</name>
    <message>
        <source>*.TXT (*.TXT *.txt);;All Files (*)</source>
        <translation>*.TXT (*.TXT *.txt);;Wszystkie pliki (*)</translation>
    </message>
</context>
<context>
    <name>ovisto::LeftOutLine</name>
    <message>
        <source>Saving leaves out: %1</source>
        <translation>Zapis pominie: %1</translation>
    </message>
    <message>
        <source>Enter opens the menu at the option</source>
        <translation>Enter otwiera menu na tej opcji</translation>
    </message>
</context>
<context>
    <name>ovisto::ListActions</name>
    <message numerus="yes">
        <source>Lost something in %L1 of %Ln files, as &quot;Keep Untouched Data?&quot; is off. The originals are kept as NAME.original.</source>
        <translation>
            <numerusform>Utracono dane w %L1 z %Ln pliku, bo opcja „Zachowuj nietknięte dane” jest wyłączona. Oryginały zachowano jako NAZWA.original.</numerusform>
            <numerusform>Utracono dane w %L1 z %Ln plików, bo opcja „Zachowuj nietknięte dane” jest wyłączona. Oryginały zachowano jako NAZWA.original.</numerusform>
            <numerusform>Utracono dane w %L1 z %Ln plików, bo opcja „Zachowuj nietknięte dane” jest wyłączona. Oryginały zachowano jako NAZWA.original.</numerusform>
        </translation>
    </message>
    <message>
        <source>Open Report</source>
        <translation>Otwórz raport</translation>
    </message>
    <message>
        <source>XSL (*.xsl *.XSL);;All Files (*.*) (*)</source>
        <translation>XSL (*.xsl *.XSL);;Wszystkie pliki (*.*) (*)</translation>
    </message>
</context>
<context>
    <name>ovisto::PictureBox</name>
    <message>
        <source>This file cannot be shown as a picture.</source>
        <translation>Tego pliku nie można wyświetlić jako obrazu.</translation>
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
        <translation>Ovisto nie może odczytać zawartości.</translation>
    </message>
</context>
<context>
    <name>ovisto::PropertyPane</name>
    <message>
        <source>No properties to show.</source>
        <translation>Brak właściwości do wyświetlenia.</translation>
    </message>
    <message>
        <source>Unexpected error - Node &apos;%1&apos; not found. Please reload the file.</source>
        <translation>Nieoczekiwany błąd – nie znaleziono węzła „%1”. Wczytaj plik ponownie.</translation>
    </message>
    <message>
        <source>Click on a node in the property NodeTree to select a value first.</source>
        <translation>Najpierw kliknij węzeł w drzewie właściwości, aby wybrać wartość.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Delete %1 and all that belongs to it?</source>
        <translation>Usunąć %1 i wszystko, co do tego należy?</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Usuń</translation>
    </message>
    <message>
        <source>Delete %1?</source>
        <translation>Usunąć %1?</translation>
    </message>
</context>
<context>
    <name>ovisto::PropertySheet</name>
    <message>
        <source>Properties of %1</source>
        <translation>Właściwości: %1</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nazwa:</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Folder:</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Typ:</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Rozmiar:</translation>
    </message>
    <message numerus="yes">
        <source>%1 bytes</source>
        <translation>
            <numerusform>%1 bajt</numerusform>
            <numerusform>%1 bajty</numerusform>
            <numerusform>%1 bajtów</numerusform>
        </translation>
    </message>
    <message>
        <source>Changed:</source>
        <translation>Zmieniono:</translation>
    </message>
    <message>
        <source>Last read:</source>
        <translation>Ostatni odczyt:</translation>
    </message>
    <message>
        <source>Owner:</source>
        <translation>Właściciel:</translation>
    </message>
    <message>
        <source>Access:</source>
        <translation>Dostęp:</translation>
    </message>
    <message>
        <source>Can be read and changed</source>
        <translation>Odczyt i zmiany</translation>
    </message>
    <message>
        <source>Can be read only</source>
        <translation>Tylko odczyt</translation>
    </message>
    <message>
        <source>Closes this window</source>
        <translation>Zamyka to okno</translation>
    </message>
</context>
<context>
    <name>ovisto::RecentMenu</name>
    <message>
        <source>No folder was searched yet</source>
        <translation>Nie przeszukano jeszcze żadnego folderu</translation>
    </message>
    <message>
        <source>&amp;Clear This List</source>
        <translation>Wy&amp;czyść tę listę</translation>
    </message>
</context>
<context>
    <name>ovisto::SlideForm</name>
    <message>
        <source>Press ESC or click the image to exit show,<byte value="xd"/>
left/right arrow to skip slides,<byte value="xd"/>
space to pause/unpause.</source>
        <translation>ESC lub kliknięcie zdjęcia kończy pokaz,<byte value="xd"/>
strzałka w lewo/prawo zmienia slajd,<byte value="xd"/>
spacja wstrzymuje i wznawia pokaz.</translation>
    </message>
    <message>
        <source>The picture ends early: part of the file is missing.</source>
        <translation>Obraz kończy się przedwcześnie: brakuje części pliku.</translation>
    </message>
    <message>
        <source>%1 (paused)</source>
        <translation>%1 (wstrzymano)</translation>
    </message>
    <message>
        <source>Slide Show</source>
        <translation>Pokaz slajdów</translation>
    </message>
</context>
</TS>
