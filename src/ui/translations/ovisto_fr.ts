<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>AboutForm</name>
    <message>
        <source>About Ovisto</source>
        <translation>À propos d’Ovisto</translation>
    </message>
    <message>
        <source>Shows what a JPEG photograph tells about itself, and lets you edit it: titles, keywords, dates, the camera&apos;s notes. The picture itself is never compressed again.</source>
        <translation>Affiche ce qu’une photo JPEG dit d’elle-même et permet de le modifier&#xa0;: titres, mots-clés, dates, notes de l’appareil. L’image elle-même n’est jamais recompressée.</translation>
    </message>
    <message>
        <source>System information</source>
        <translation>Informations système</translation>
    </message>
    <message>
        <source>&amp;System Information</source>
        <translation>&amp;Informations système</translation>
    </message>
    <message>
        <source>Show what is known about this computer</source>
        <translation>Afficher ce que l’on sait de cet ordinateur</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Version of the program</source>
        <translation>Version du programme</translation>
    </message>
    <message>
        <source>Libraries that the program is made with</source>
        <translation>Bibliothèques dont le programme est fait</translation>
    </message>
    <message>
        <source>What is known about this computer</source>
        <translation>Ce que l’on sait de cet ordinateur</translation>
    </message>
    <message>
        <source>Closes this window</source>
        <translation>Ferme cette fenêtre</translation>
    </message>
</context>
<context>
    <name>Advice</name>
    <message>
        <source>Change the value, or delete the property.</source>
        <translation>Modifiez la valeur ou supprimez la propriété.</translation>
    </message>
    <message>
        <source>Close other programs, and try again.</source>
        <translation>Fermez d’autres programmes et réessayez.</translation>
    </message>
    <message>
        <source>Type a value of the data type that is shown below it: a whole number, or a fraction such as 1/125. Several are separated by commas.</source>
        <translation>Saisissez une valeur du type de données indiqué au-dessous&#xa0;: un nombre entier, ou une fraction telle que 1/125. Séparez plusieurs valeurs par des virgules.</translation>
    </message>
    <message>
        <source>Check whether the file was moved, renamed or deleted.</source>
        <translation>Vérifiez si le fichier a été déplacé, renommé ou supprimé.</translation>
    </message>
    <message>
        <source>Copy what you can to another disk, and work there.</source>
        <translation>Copiez ce qui peut l’être sur un autre disque, et travaillez-y.</translation>
    </message>
    <message>
        <source>Free some space on the disk, and try again.</source>
        <translation>Libérez de l’espace sur le disque et réessayez.</translation>
    </message>
    <message>
        <source>Check the permissions of the file and of its folder.</source>
        <translation>Vérifiez les droits d’accès du fichier et de son dossier.</translation>
    </message>
    <message>
        <source>Check that the disk or card is connected, and that the folder was not renamed.</source>
        <translation>Vérifiez que le disque ou la carte est en place et que le dossier n’a pas été renommé.</translation>
    </message>
    <message>
        <source>The file is not a JPEG photograph, or it is damaged. If it was one, restore it from your backup.</source>
        <translation>Le fichier n’est pas une photo JPEG, ou il est endommagé. Si c’en était une, restaurez-la à partir de votre sauvegarde.</translation>
    </message>
</context>
<context>
    <name>BatchForm</name>
    <message>
        <source>Batch Action</source>
        <translation>Traitement par lot</translation>
    </message>
    <message>
        <source>Carry out the following action on all selected images in the Files Found List...</source>
        <translation>Appliquer l’action suivante à toutes les images sélectionnées dans la liste des fichiers trouvés…</translation>
    </message>
    <message>
        <source>&amp;Node</source>
        <translation>&amp;Nœud</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>Nœud</translation>
    </message>
    <message>
        <source>&amp;Set to value</source>
        <translation>&amp;Définir la valeur</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>&amp;Delete Node</source>
        <translation>&amp;Supprimer le nœud</translation>
    </message>
    <message>
        <source>S&amp;tart</source>
        <translation>&amp;Lancer</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Ann&amp;uler</translation>
    </message>
    <message>
        <source>The property to change in all photographs of the list</source>
        <translation>La propriété à modifier dans toutes les photos de la liste</translation>
    </message>
    <message>
        <source>Gives the property the value below, in every photograph</source>
        <translation>Donne à la propriété la valeur ci-dessous, dans chaque photo</translation>
    </message>
    <message>
        <source>The value that the property gets</source>
        <translation>La valeur que reçoit la propriété</translation>
    </message>
    <message>
        <source>Deletes the property from every photograph</source>
        <translation>Supprime la propriété de chaque photo</translation>
    </message>
    <message>
        <source>Changes all photographs of the list</source>
        <translation>Modifie toutes les photos de la liste</translation>
    </message>
    <message>
        <source>Closes the dialog and changes nothing</source>
        <translation>Ferme la fenêtre sans rien modifier</translation>
    </message>
</context>
<context>
    <name>BatchResultForm</name>
    <message>
        <source>Batch Result</source>
        <translation>Résultat du traitement par lot</translation>
    </message>
    <message>
        <source>Files and results</source>
        <translation>Fichiers et résultats</translation>
    </message>
    <message>
        <source>&amp;Keep only the failed in the list</source>
        <translation>&amp;Ne garder que les échecs dans la liste</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>What became of each photograph</source>
        <translation>Ce qu’il est advenu de chaque photo</translation>
    </message>
    <message>
        <source>Closes the dialog and takes all other photographs out of the list</source>
        <translation>Ferme la fenêtre et retire toutes les autres photos de la liste</translation>
    </message>
    <message>
        <source>Closes the dialog and leaves the list as it is</source>
        <translation>Ferme la fenêtre et laisse la liste telle quelle</translation>
    </message>
</context>
<context>
    <name>BatchWatch</name>
    <message>
        <source>Go on with the other files? Those that fail are listed at the end.</source>
        <translation>Continuer avec les autres fichiers&#x202f;? Les échecs sont énumérés à la fin.</translation>
    </message>
    <message>
        <source>&amp;Go On</source>
        <translation>&amp;Continuer</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Arrêter</translation>
    </message>
    <message numerus="yes">
        <source>%Ln changed</source>
        <translation>
            <numerusform>%Ln modifié</numerusform>
            <numerusform>%Ln modifiés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln unchanged</source>
        <translation>
            <numerusform>%Ln inchangé</numerusform>
            <numerusform>%Ln inchangés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln failed</source>
        <translation>
            <numerusform>%Ln en échec</numerusform>
            <numerusform>%Ln en échec</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln not reached</source>
        <translation>
            <numerusform>%Ln non traité</numerusform>
            <numerusform>%Ln non traités</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BrowserCapForm</name>
    <message>
        <source>Find Files</source>
        <translation>Rechercher des fichiers</translation>
    </message>
    <message>
        <source>Folders / Directories</source>
        <translation>Dossiers / répertoires</translation>
    </message>
    <message>
        <source>Folder to scan</source>
        <translation>Dossier à parcourir</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Go to the folder above</source>
        <translation>Aller au dossier parent</translation>
    </message>
    <message>
        <source>Go to the home folder</source>
        <translation>Aller au dossier personnel</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Dossiers</translation>
    </message>
    <message>
        <source>Scan Options</source>
        <translation>Options de recherche</translation>
    </message>
    <message>
        <source>Filename Pattern</source>
        <translation>Modèle de nom de fichier</translation>
    </message>
    <message>
        <source>list of file extensions separated by semicolon;</source>
        <translation>Liste d’extensions de fichier séparées par des points-virgules (;)</translation>
    </message>
    <message>
        <source>Scan Subfolders as well?</source>
        <translation>Parcourir aussi les sous-dossiers&#x202f;?</translation>
    </message>
    <message>
        <source>Scan Subfolders of selected folder?</source>
        <translation>Parcourir les sous-dossiers du dossier sélectionné&#x202f;?</translation>
    </message>
    <message>
        <source>Add files found to list?</source>
        <translation>Ajouter les fichiers trouvés à la liste&#x202f;?</translation>
    </message>
    <message>
        <source>Add to list of files found (or clear)?</source>
        <translation>Ajouter à la liste des fichiers trouvés (ou la vider)&#x202f;?</translation>
    </message>
    <message>
        <source>Content Filter</source>
        <translation>Filtre de contenu</translation>
    </message>
    <message>
        <source>Containing words</source>
        <translation>Contenant les mots</translation>
    </message>
    <message>
        <source>Words to search for, or regular expression</source>
        <translation>Mots à rechercher, ou expression régulière</translation>
    </message>
    <message>
        <source>(separate words with commas)</source>
        <translation>(séparer les mots par des virgules)</translation>
    </message>
    <message>
        <source>Must find ALL words?</source>
        <translation>Trouver TOUS les mots&#x202f;?</translation>
    </message>
    <message>
        <source>File must have all words, or any of them?</source>
        <translation>Le fichier doit-il contenir tous les mots, ou l’un d’eux&#x202f;?</translation>
    </message>
    <message>
        <source>Find whole words only?</source>
        <translation>Mots entiers uniquement&#x202f;?</translation>
    </message>
    <message>
        <source>Look for whole words only or part of word</source>
        <translation>Rechercher seulement des mots entiers, ou aussi des parties de mots</translation>
    </message>
    <message>
        <source>Treat the text above as a Regular Expression</source>
        <translation>Traiter le texte ci-dessus comme une expression régulière</translation>
    </message>
    <message>
        <source>Regular expression</source>
        <translation>Expression régulière</translation>
    </message>
    <message>
        <source>Or, if you know how to write regular expressions, then enter your RegExp above and tick this box.</source>
        <translation>Ou bien, si vous savez écrire des expressions régulières, saisissez la vôtre ci-dessus et cochez cette case.</translation>
    </message>
    <message>
        <source>Search shown values, too</source>
        <translation>Rechercher aussi dans les valeurs affichées</translation>
    </message>
    <message>
        <source>Also look for the text above in the values as the property tree shows them, such as &quot;turned right&quot;</source>
        <translation>Rechercher aussi le texte ci-dessus dans les valeurs telles que l’arborescence des propriétés les affiche, par exemple «&#xa0;turned right&#xa0;»</translation>
    </message>
    <message>
        <source>&amp;Select Folder</source>
        <translation>&amp;Sélectionner le dossier</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>To begin, choose the folder of your photographs. Nothing is searched before you press Select Folder.</source>
        <translation>Pour commencer, choisissez le dossier de vos photos. Aucune recherche n’a lieu avant que vous n’appuyiez sur « Sélectionner le dossier ».</translation>
    </message>
    <message>
        <source>&amp;Recent</source>
        <translation>&amp;Récents</translation>
    </message>
    <message>
        <source>Folders searched lately</source>
        <translation>Dossiers parcourus récemment</translation>
    </message>
    <message>
        <source>Searches the folder</source>
        <translation>Lance la recherche dans le dossier</translation>
    </message>
    <message>
        <source>Closes the dialog and changes nothing</source>
        <translation>Ferme la fenêtre sans rien modifier</translation>
    </message>
</context>
<context>
    <name>ControlForm</name>
    <message>
        <source>Find Files</source>
        <translation>Rechercher des fichiers</translation>
    </message>
    <message>
        <source>Select &amp; scan a folder for image files</source>
        <translation>Choisir un dossier et y rechercher des images</translation>
    </message>
    <message>
        <source>List of images found</source>
        <translation>Liste des images trouvées</translation>
    </message>
    <message>
        <source>Images found</source>
        <translation>Images trouvées</translation>
    </message>
    <message>
        <source>Save &amp; show previous image in list</source>
        <translation>Enregistrer et afficher l’image précédente de la liste</translation>
    </message>
    <message>
        <source>Previous image</source>
        <translation>Image précédente</translation>
    </message>
    <message>
        <source>Save &amp; show next image in list</source>
        <translation>Enregistrer et afficher l’image suivante de la liste</translation>
    </message>
    <message>
        <source>Next image</source>
        <translation>Image suivante</translation>
    </message>
    <message>
        <source>S&amp;lide Show</source>
        <translation>&amp;Diaporama</translation>
    </message>
    <message>
        <source>Show files listed in a slide-show</source>
        <translation>Afficher les fichiers de la liste en diaporama</translation>
    </message>
    <message>
        <source>&amp;Batch</source>
        <translation>Par &amp;lot</translation>
    </message>
    <message>
        <source>Change all files listed</source>
        <translation>Modifier tous les fichiers de la liste</translation>
    </message>
    <message>
        <source>Your list of favourite keywords</source>
        <translation>Votre liste de mots-clés favoris</translation>
    </message>
    <message>
        <source>Favourite keywords</source>
        <translation>Mots-clés favoris</translation>
    </message>
    <message>
        <source>&amp;Keywords</source>
        <translation>&amp;Mots-clés</translation>
    </message>
    <message>
        <source>Load a different keyword list from a file</source>
        <translation>Charger une autre liste de mots-clés à partir d’un fichier</translation>
    </message>
    <message>
        <source>Drop photographs or folders of them here, or choose Find Files.</source>
        <translation>Déposez ici des photos ou des dossiers de photos, ou cliquez sur «&#xa0;Rechercher des fichiers&#xa0;».</translation>
    </message>
    <message>
        <source>Left click to open, right click for properties</source>
        <translation>Clic gauche pour ouvrir, clic droit pour les propriétés</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>OS Properties</source>
        <translation>Propriétés pour le système</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>Titre&#xa0;:</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Comments</source>
        <translation>Commentaires</translation>
    </message>
    <message>
        <source>Subject:</source>
        <translation>Sujet&#xa0;:</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Sujet</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Mots-clés</translation>
    </message>
    <message>
        <source>Ditto</source>
        <translation>Idem</translation>
    </message>
    <message>
        <source>Repeat from previous image</source>
        <translation>Reprendre les textes de l’image précédente</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Save changes made to this file</source>
        <translation>Enregistrer les modifications de ce fichier</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Réinitialiser</translation>
    </message>
    <message>
        <source>Undo ALL changes made to this file</source>
        <translation>Annuler TOUTES les modifications de ce fichier</translation>
    </message>
    <message>
        <source>This file has changes that are not saved yet</source>
        <translation>Ce fichier contient des modifications qui ne sont pas encore enregistrées</translation>
    </message>
    <message>
        <source>Changes not saved</source>
        <translation>Modifications non enregistrées</translation>
    </message>
    <message>
        <source>File Property Tree</source>
        <translation>Arborescence des propriétés du fichier</translation>
    </message>
    <message>
        <source>File properties</source>
        <translation>Propriétés du fichier</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Propriété</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Current Node</source>
        <translation>Nœud actuel</translation>
    </message>
    <message>
        <source>Name of current file</source>
        <translation>Nom du fichier actuel</translation>
    </message>
    <message>
        <source>Tag number</source>
        <translation>Numéro de balise</translation>
    </message>
    <message>
        <source>Show as Hex?</source>
        <translation>Afficher en hexa&#x202f;?</translation>
    </message>
    <message>
        <source>Translate to hexadecimal code?</source>
        <translation>Convertir en code hexadécimal&#x202f;?</translation>
    </message>
    <message>
        <source>Value of property selected in tree</source>
        <translation>Valeur de la propriété sélectionnée dans l’arborescence</translation>
    </message>
    <message>
        <source>Thumbnail</source>
        <translation>Vignette</translation>
    </message>
    <message>
        <source>Values that this property can have, and what they mean</source>
        <translation>Valeurs possibles de cette propriété, et leur signification</translation>
    </message>
    <message>
        <source>Known values</source>
        <translation>Valeurs connues</translation>
    </message>
    <message>
        <source>What the value means</source>
        <translation>Signification de la valeur</translation>
    </message>
    <message>
        <source>Data type</source>
        <translation>Type de données</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>&amp;Add Node</source>
        <translation>&amp;Ajouter un nœud</translation>
    </message>
    <message>
        <source>Add new node</source>
        <translation>Ajouter un nouveau nœud</translation>
    </message>
    <message>
        <source>&amp;Delete Node</source>
        <translation>&amp;Supprimer le nœud</translation>
    </message>
    <message>
        <source>CAUTION: use at own risk!</source>
        <translation>ATTENTION&#xa0;: à vos risques et périls&#x202f;!</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>&amp;Options</translation>
    </message>
    <message>
        <source>&amp;Image</source>
        <translation>&amp;Image</translation>
    </message>
    <message>
        <source>Save &amp;XML</source>
        <translation>Enregistrer en &amp;XML</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>&amp;What Does It Tell?</source>
        <translation>Que ré&amp;vèle la photo&#x202f;?</translation>
    </message>
    <message>
        <source>Lists what the photograph tells of people and places, and deletes what you select.</source>
        <translation>Énumère ce que la photo révèle sur des personnes et des lieux, et supprime ce que vous sélectionnez.</translation>
    </message>
    <message>
        <source>&amp;Generate Report</source>
        <translation>&amp;Générer un rapport</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>Keep Maker Notes?</source>
        <translation>Conserver les notes du fabricant&#x202f;?</translation>
    </message>
    <message>
        <source>Keep Thumbnails?</source>
        <translation>Conserver les vignettes&#x202f;?</translation>
    </message>
    <message>
        <source>Keep Non-standard Exif?</source>
        <translation>Conserver l’Exif non standard&#x202f;?</translation>
    </message>
    <message>
        <source>Keep Untouched Data?</source>
        <translation>Conserver les données non modifiées&#x202f;?</translation>
    </message>
    <message>
        <source>Saving changes only what you edited and leaves the rest of the file as it is. Counts from the next file opened.</source>
        <translation>L’enregistrement ne change que ce que vous avez modifié et laisse le reste du fichier tel quel. S’applique à partir du prochain fichier ouvert.</translation>
    </message>
    <message>
        <source>Read Everything?</source>
        <translation>Tout lire&#x202f;?</translation>
    </message>
    <message>
        <source>Shows texts in any language and the place, all as it was written. Counts from the next file opened.</source>
        <translation>Affiche les textes de toutes les langues et le lieu, tels qu’ils ont été écrits. S’applique à partir du prochain fichier ouvert.</translation>
    </message>
    <message>
        <source>Show Technical Data?</source>
        <translation>Afficher les données techniques&#x202f;?</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>OS &amp;Properties</source>
        <translation>&amp;Propriétés du fichier</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Sommaire</translation>
    </message>
    <message>
        <source>Photographs and keywords</source>
        <translation>Photos et mots-clés</translation>
    </message>
    <message>
        <source>Photographs</source>
        <translation>Photos</translation>
    </message>
    <message>
        <source>Enter inserts the keyword</source>
        <translation>Entrée insère le mot-clé</translation>
    </message>
    <message>
        <source>Picture and its descriptions</source>
        <translation>Image et ses descriptions</translation>
    </message>
    <message>
        <source>Title of the photograph, as the desktop shows it</source>
        <translation>Titre de la photo, tel que le bureau l’affiche</translation>
    </message>
    <message>
        <source>Comments on the photograph, as the desktop shows them</source>
        <translation>Commentaires sur la photo, tels que le bureau les affiche</translation>
    </message>
    <message>
        <source>Subject of the photograph, as the desktop shows it</source>
        <translation>Sujet de la photo, tel que le bureau l’affiche</translation>
    </message>
    <message>
        <source>Keywords of the photograph, as the desktop shows them</source>
        <translation>Mots-clés de la photo, tels que le bureau les affiche</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propriétés</translation>
    </message>
    <message>
        <source>Property tree</source>
        <translation>Arborescence des propriétés</translation>
    </message>
    <message>
        <source>F2 edits the value, Delete deletes the property</source>
        <translation>F2 modifie la valeur, Suppr supprime la propriété</translation>
    </message>
    <message>
        <source>What the selected property is for</source>
        <translation>À quoi sert la propriété sélectionnée</translation>
    </message>
    <message>
        <source>&amp;Recent Folders</source>
        <translation>Dossiers ré&amp;cents</translation>
    </message>
    <message>
        <source>&amp;Find Files</source>
        <translation>Rechercher des &amp;fichiers</translation>
    </message>
    <message>
        <source>Find W&amp;ords</source>
        <translation>Rechercher des &amp;mots</translation>
    </message>
    <message>
        <source>Read &amp;Again</source>
        <translation>Re&amp;lire</translation>
    </message>
    <message>
        <source>Arrow keys open the photograph above or below; the focus then moves to the property tree</source>
        <translation>Les touches fléchées ouvrent la photo précédente ou suivante&#x202f;; le focus passe alors à l’arborescence des propriétés</translation>
    </message>
</context>
<context>
    <name>DataType</name>
    <message>
        <source>Byte</source>
        <translation>Octet</translation>
    </message>
    <message>
        <source>String</source>
        <translation>Chaîne</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>Entier court</translation>
    </message>
    <message>
        <source>Long</source>
        <translation>Entier long</translation>
    </message>
    <message>
        <source>Rational</source>
        <translation>Fraction</translation>
    </message>
    <message>
        <source>Signed Byte</source>
        <translation>Octet signé</translation>
    </message>
    <message>
        <source>Undefined</source>
        <translation>Indéfini</translation>
    </message>
    <message>
        <source>Signed Short</source>
        <translation>Entier court signé</translation>
    </message>
    <message>
        <source>Signed Long</source>
        <translation>Entier long signé</translation>
    </message>
    <message>
        <source>Signed Rational</source>
        <translation>Fraction signée</translation>
    </message>
    <message>
        <source>Unicode String</source>
        <translation>Chaîne Unicode</translation>
    </message>
    <message>
        <source>Float</source>
        <translation>Flottant simple</translation>
    </message>
    <message>
        <source>Double</source>
        <translation>Flottant double</translation>
    </message>
    <message>
        <source>Directory Position</source>
        <translation>Position de répertoire</translation>
    </message>
    <message>
        <source>UTF-8 String</source>
        <translation>Chaîne UTF-8</translation>
    </message>
    <message>
        <source>%1 Required</source>
        <translation>%1, obligatoire</translation>
    </message>
    <message>
        <source>%1 Protected</source>
        <translation>%1, valeur protégée</translation>
    </message>
</context>
<context>
    <name>FailureMessages</name>
    <message>
        <source>The report does not cover these files:</source>
        <translation>Ces fichiers ne figurent pas dans le rapport&#xa0;:</translation>
    </message>
    <message>
        <source>There is no such file or folder:</source>
        <translation>Fichier ou dossier introuvable&#xa0;:</translation>
    </message>
    <message numerus="yes">
        <source>and %Ln more</source>
        <translation>
            <numerusform>et %Ln autre</numerusform>
            <numerusform>et %Ln autres</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Other folders that could not be read (%Ln):</source>
        <translation>
            <numerusform>Autre dossier qui n’a pas pu être lu (%Ln)&#xa0;:</numerusform>
            <numerusform>Autres dossiers qui n’ont pas pu être lus (%Ln)&#xa0;:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>GapKeys</name>
    <message>
        <source>Width: %1</source>
        <translation>Largeur&#xa0;: %1</translation>
    </message>
    <message>
        <source>Height: %1</source>
        <translation>Hauteur&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>HelpContents</name>
    <message>
        <source>Unable to display Help Contents. There is no Help associated with this project.</source>
        <translation>Impossible d’afficher le sommaire de l’aide. Aucune aide n’est associée à ce projet.</translation>
    </message>
    <message>
        <source>No program was found that shows web pages.</source>
        <translation>Aucun programme permettant d’afficher des pages web n’a été trouvé.</translation>
    </message>
</context>
<context>
    <name>LeftOutLine</name>
    <message>
        <source>maker notes</source>
        <translation>notes du fabricant</translation>
    </message>
    <message>
        <source>thumbnails</source>
        <translation>vignettes</translation>
    </message>
    <message>
        <source>non-standard Exif</source>
        <translation>Exif non standard</translation>
    </message>
    <message>
        <source>what is not shown</source>
        <translation>données non affichées</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1<byte value="xd"/>
%2 : %3</source>
        <translation>%1<byte value="xd"/>
%2&#xa0;: %3</translation>
    </message>
    <message>
        <source>Invalid procedure call or argument</source>
        <translation>Appel ou argument de procédure non valide</translation>
    </message>
    <message>
        <source>Overflow</source>
        <translation>Dépassement de capacité</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>Mémoire insuffisante</translation>
    </message>
    <message>
        <source>Type mismatch</source>
        <translation>Type incompatible</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>Fichier introuvable</translation>
    </message>
    <message>
        <source>Device I/O error</source>
        <translation>Erreur d’entrée/sortie du périphérique</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Disque plein</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Permission refusée</translation>
    </message>
    <message>
        <source>Path/File access error</source>
        <translation>Erreur d’accès au chemin ou au fichier</translation>
    </message>
    <message>
        <source>Path not found</source>
        <translation>Chemin introuvable</translation>
    </message>
    <message>
        <source>Object not set</source>
        <translation>Objet non défini</translation>
    </message>
    <message>
        <source>Unexpected error</source>
        <translation>Erreur inattendue</translation>
    </message>
    <message>
        <source>It is a folder, not a file</source>
        <translation>C’est un dossier et non un fichier</translation>
    </message>
    <message>
        <source>It is not a folder</source>
        <translation>Ce n’est pas un dossier</translation>
    </message>
    <message>
        <source>It is not a regular file</source>
        <translation>Ce n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>There is no folder %1</source>
        <translation>Le dossier %1 n’existe pas</translation>
    </message>
    <message>
        <source>Interrupted</source>
        <translation>Opération interrompue</translation>
    </message>
    <message>
        <source>Not a regular expression: %1: %2 (at character %3)</source>
        <translation>Expression régulière non valide&#xa0;: %1&#xa0;: %2 (au caractère %3)</translation>
    </message>
    <message>
        <source>The regular expression runs too long: %1</source>
        <translation>L’exécution de l’expression régulière est trop longue&#xa0;: %1</translation>
    </message>
    <message>
        <source>The words &quot;%1&quot; cannot be searched for: %2. Characters such as ( * ? have a meaning; put \ before one that stands for itself.</source>
        <translation>Impossible de rechercher les mots «&#xa0;%1&#xa0;»&#xa0;: %2. Des caractères tels que ( * ? ont un sens particulier&#x202f;; placez \ devant celui qui doit être pris tel quel.</translation>
    </message>
    <message>
        <source>File %1<byte value="xd"/>
Line %2 pos %3 <byte value="xd"/>
%4<byte value="xd"/>
%5</source>
        <translation>Fichier %1<byte value="xd"/>
Ligne %2 pos. %3 <byte value="xd"/>
%4<byte value="xd"/>
%5</translation>
    </message>
    <message>
        <source>%1 line:%2 pos:%3 src:%4</source>
        <translation>%1 ligne&#xa0;: %2 pos.&#xa0;: %3 source&#xa0;: %4</translation>
    </message>
    <message>
        <source>Not a valid path: %1</source>
        <translation>Chemin non valide&#xa0;: %1</translation>
    </message>
    <message>
        <source>The document type &quot;%1&quot; cannot be loaded</source>
        <translation>Le type de document «&#xa0;%1&#xa0;» ne peut pas être chargé</translation>
    </message>
    <message>
        <source>The content does not match the document type</source>
        <translation>Le contenu ne correspond pas au type de document</translation>
    </message>
    <message>
        <source>The entity &quot;%1&quot; is not declared</source>
        <translation>L’entité «&#xa0;%1&#xa0;» n’est pas déclarée</translation>
    </message>
    <message>
        <source>The entity &quot;%1&quot; is outside the document, and is not read</source>
        <translation>L’entité «&#xa0;%1&#xa0;» est extérieure au document et n’est pas lue</translation>
    </message>
    <message>
        <source>The entity cannot be read from %1</source>
        <translation>L’entité ne peut pas être lue à partir de %1</translation>
    </message>
    <message>
        <source>The entities of the document take far more memory than its text</source>
        <translation>Les entités du document occupent bien plus de mémoire que son texte</translation>
    </message>
    <message>
        <source>The document includes another one, which is not read</source>
        <translation>Le document en inclut un autre, qui n’est pas lu</translation>
    </message>
    <message>
        <source>The elements of the document nest too deep</source>
        <translation>Les éléments du document sont imbriqués trop profondément</translation>
    </message>
    <message>
        <source>The style sheet may not read %1, which is not in its folder</source>
        <translation>La feuille de style n’a pas le droit de lire %1, qui n’est pas dans son dossier</translation>
    </message>
    <message>
        <source>The style sheet cannot be applied</source>
        <translation>La feuille de style ne peut pas être appliquée</translation>
    </message>
    <message>
        <source>The style sheet takes far more memory than the documents need</source>
        <translation>La feuille de style prend bien plus de mémoire que n’en demandent les documents</translation>
    </message>
    <message>
        <source>%1  file=%2</source>
        <translation>%1  fichier=%2</translation>
    </message>
    <message>
        <source>%2: %1</source>
        <translation>%2&#xa0;: %1</translation>
    </message>
    <message>
        <source>Not a JPEG file - hFFD8 expected at start of file %1</source>
        <translation>Ce n’est pas un fichier JPEG – hFFD8 attendu au début du fichier %1</translation>
    </message>
    <message>
        <source>Header seems corrupted - unknown Marker %1 %2</source>
        <translation>L’en-tête semble endommagé – marqueur inconnu %1 dans %2</translation>
    </message>
    <message>
        <source>No StartOfStream marker found %1</source>
        <translation>Aucun marqueur StartOfStream trouvé dans %1</translation>
    </message>
    <message>
        <source>I don&apos;t know what type of data this node requires - can&apos;t set its value.</source>
        <translation>Le type de données que demande ce nœud est inconnu&#xa0;: impossible de définir sa valeur.</translation>
    </message>
    <message>
        <source>The image cannot be shown without this node as it is.</source>
        <translation>L’image ne peut pas être affichée sans ce nœud tel qu’il est.</translation>
    </message>
    <message>
        <source>This node is required by others and cannot be deleted by itself.</source>
        <translation>D’autres nœuds ont besoin de celui-ci, qui ne peut pas être supprimé seul.</translation>
    </message>
    <message>
        <source>Only a document that reads everything has this node; rebuilding reads a basic one.</source>
        <translation>Seul un document en lecture complète contient ce nœud&#x202f;; la reconstruction lit un document de base.</translation>
    </message>
    <message>
        <source>The tag dictionary has no entry for this node.</source>
        <translation>Le dictionnaire des balises n’a pas d’entrée pour ce nœud.</translation>
    </message>
    <message>
        <source>The file does not have this node, and it cannot be created without an entry in the tag dictionary.</source>
        <translation>Le fichier ne contient pas ce nœud, qui ne peut pas être créé sans entrée dans le dictionnaire des balises.</translation>
    </message>
    <message numerus="yes">
        <source>%1 nodes of the file have this path.</source>
        <translation>
            <numerusform>%1 nœud du fichier a ce chemin.</numerusform>
            <numerusform>%1 nœuds du fichier ont ce chemin.</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;%1&quot; would be written as &quot;?&quot;: in a basic document, %2 holds Western European texts only.</source>
        <translation>«&#xa0;%1&#xa0;» serait écrit «&#x202f;?&#xa0;»&#xa0;: dans un document de base, %2 n’accepte que des textes d’Europe occidentale.</translation>
    </message>
    <message>
        <source>Create node failed %1</source>
        <translation>Échec de la création du nœud %1</translation>
    </message>
    <message>
        <source>A document that reads everything cannot be rebuilt; make one with xml, without --full.</source>
        <translation>Un document en lecture complète ne peut pas être reconstruit&#x202f;; créez-en un avec xml, sans --full.</translation>
    </message>
    <message>
        <source>Write to %1</source>
        <translation>Écriture dans %1</translation>
    </message>
    <message>
        <source>%1 write failed</source>
        <translation>Échec de l’écriture de %1</translation>
    </message>
    <message>
        <source>%1 transfer of image from existing file failed</source>
        <translation>%1&#xa0;: échec du transfert de l’image depuis le fichier existant</translation>
    </message>
    <message>
        <source>Delete old file %1</source>
        <translation>Suppression de l’ancien fichier %1</translation>
    </message>
    <message>
        <source>Rename file %1 to %2</source>
        <translation>Renommage du fichier %1 en %2</translation>
    </message>
    <message>
        <source>Another program has moved or replaced the new version</source>
        <translation>Un autre programme a déplacé ou remplacé la nouvelle version</translation>
    </message>
    <message>
        <source>%1. The new version is in %2</source>
        <translation>%1. La nouvelle version se trouve dans %2</translation>
    </message>
    <message>
        <source>It is saved, but not known to be on disk. %1</source>
        <translation>L’enregistrement est fait, mais son écriture sur le disque n’est pas confirmée. %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be saved in %2</source>
        <translation>La propriété «&#xa0;%1&#xa0;» n’a pas pu être enregistrée dans %2</translation>
    </message>
    <message>
        <source>The text has &quot;]]&gt;&quot;, which could not be read back</source>
        <translation>Le texte contient «&#xa0;]]&gt;&#xa0;», qui ne pourrait pas être relu</translation>
    </message>
    <message>
        <source>The text has a control character that could not be read back</source>
        <translation>Le texte contient un caractère de contrôle qui ne pourrait pas être relu</translation>
    </message>
    <message>
        <source>The text has elements, which must stand in a CDATA section to be kept</source>
        <translation>Le texte contient des éléments, qui doivent figurer dans une section CDATA pour être conservés</translation>
    </message>
    <message>
        <source>A character between the changed ones could not be read, so it cannot be written.</source>
        <translation>Un caractère situé entre ceux qui ont été modifiés n’a pas pu être lu et ne peut donc pas être écrit.</translation>
    </message>
    <message>
        <source>The id of an IFD element is not four hexadecimal digits: %1</source>
        <translation>L’attribut id d’un élément IFD n’est pas formé de quatre chiffres hexadécimaux&#xa0;: %1</translation>
    </message>
    <message>
        <source>The document has more than one IMG element</source>
        <translation>Le document contient plus d’un élément IMG</translation>
    </message>
    <message>
        <source>The file was changed after it was read</source>
        <translation>Le fichier a été modifié après sa lecture</translation>
    </message>
    <message>
        <source>The file has another picture now, which needs tables that the document does not have</source>
        <translation>Le fichier contient maintenant une autre image, qui a besoin de tables absentes du document</translation>
    </message>
    <message>
        <source>The new version could not be read back: %1</source>
        <translation>La nouvelle version n’a pas pu être relue&#xa0;: %1</translation>
    </message>
    <message>
        <source>Temp file write failed</source>
        <translation>Échec de l’écriture dans le fichier temporaire</translation>
    </message>
    <message>
        <source>Temp file write integer %1</source>
        <translation>Fichier temporaire&#xa0;: écriture de l’entier court %1</translation>
    </message>
    <message>
        <source>Temp file write long %1</source>
        <translation>Fichier temporaire&#xa0;: écriture de l’entier long %1</translation>
    </message>
    <message>
        <source>Temp file write string</source>
        <translation>Fichier temporaire&#xa0;: écriture d’une chaîne</translation>
    </message>
    <message numerus="yes">
        <source>The segment would have %1 bytes, but its length says %2</source>
        <translation>
            <numerusform>Le segment ferait %1 octet, mais sa longueur indique %2</numerusform>
            <numerusform>Le segment ferait %1 octets, mais sa longueur indique %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The value would have %1 bytes instead of %2</source>
        <translation>
            <numerusform>La valeur ferait %1 octet au lieu de %2</numerusform>
            <numerusform>La valeur ferait %1 octets au lieu de %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Exif section - calculate data length</source>
        <translation>Section Exif – calcul de la longueur des données</translation>
    </message>
    <message>
        <source>Exif Offset Calculation failed</source>
        <translation>Échec du calcul des positions Exif</translation>
    </message>
    <message>
        <source>Can&apos;t tie up the MakerNote to its entry in the header (!??)</source>
        <translation>Impossible de rattacher la MakerNote à son entrée dans l’en-tête (!??)</translation>
    </message>
    <message>
        <source>Exif write failed</source>
        <translation>Échec de l’écriture des données Exif</translation>
    </message>
    <message>
        <source>Data format %1 error:%2</source>
        <translation>Erreur de format de données %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>The image cannot be shown without its scan header as the last segment</source>
        <translation>L’image ne peut pas être affichée si son en-tête de balayage n’est pas le dernier segment</translation>
    </message>
    <message>
        <source>The segments of the file do not lead to its image</source>
        <translation>Les segments du fichier ne mènent pas à son image</translation>
    </message>
    <message>
        <source>The segment would be longer than 65,535 bytes</source>
        <translation>Le segment dépasserait 65&#x202f;535 octets</translation>
    </message>
    <message numerus="yes">
        <source>The Exif segment would be %1 bytes longer than the 65,535 that it has room for; rebuilding (&quot;Keep Untouched Data?&quot; off, --rebuild) may make it shorter</source>
        <translation>
            <numerusform>Le segment Exif dépasserait de %1 octet les 65&#x202f;535 dont il dispose&#x202f;; la reconstruction («&#xa0;Conserver les données non modifiées&#x202f;?&#xa0;» désactivé, --rebuild) peut le raccourcir</numerusform>
            <numerusform>Le segment Exif dépasserait de %1 octets les 65&#x202f;535 dont il dispose&#x202f;; la reconstruction («&#xa0;Conserver les données non modifiées&#x202f;?&#xa0;» désactivé, --rebuild) peut le raccourcir</numerusform>
        </translation>
    </message>
    <message>
        <source>The Exif directories name the same bytes again and again</source>
        <translation>Les répertoires Exif désignent sans cesse les mêmes octets</translation>
    </message>
    <message>
        <source>The directory could not be read, so that nothing in it can be changed</source>
        <translation>Le répertoire n’a pas pu être lu&#xa0;: rien ne peut y être modifié</translation>
    </message>
    <message>
        <source>The file has one that could not be read</source>
        <translation>Le fichier en contient un qui n’a pas pu être lu</translation>
    </message>
    <message>
        <source>The text of this entry is the place of what it leads to</source>
        <translation>Le texte de cette entrée est la position des données auxquelles elle renvoie</translation>
    </message>
    <message>
        <source>A thumbnail in strips cannot be changed</source>
        <translation>Une vignette en bandes ne peut pas être modifiée</translation>
    </message>
    <message>
        <source>Four bytes or fewer would stand where their place is looked for</source>
        <translation>Quatre octets ou moins se trouveraient là où leur position est attendue</translation>
    </message>
    <message>
        <source>The value is not a run of pairs of hexadecimal digits</source>
        <translation>La valeur n’est pas une suite de paires de chiffres hexadécimaux</translation>
    </message>
    <message>
        <source>The value stands outside its entry, and the document shows only where</source>
        <translation>La valeur se trouve hors de son entrée, et le document n’indique que sa position</translation>
    </message>
    <message>
        <source>The value has to be four bytes</source>
        <translation>La valeur doit faire quatre octets</translation>
    </message>
    <message>
        <source>Values of this data type cannot be changed</source>
        <translation>Les valeurs de ce type de données ne peuvent pas être modifiées</translation>
    </message>
    <message>
        <source>The old value is not all in the Exif segment</source>
        <translation>L’ancienne valeur n’est pas entièrement dans le segment Exif</translation>
    </message>
    <message>
        <source>%1 would read %2 instead of %3</source>
        <translation>%1 contiendrait %2 au lieu de %3</translation>
    </message>
    <message>
        <source>%1 would have type %2 and count %3 instead of type %4 and count %5</source>
        <translation>%1 aurait le type %2 et le nombre %3 au lieu du type %4 et du nombre %5</translation>
    </message>
    <message>
        <source>%1 would stand at %2 instead of %3</source>
        <translation>%1 se trouverait à la position %2 au lieu de %3</translation>
    </message>
    <message>
        <source>%1 would be lost</source>
        <translation>%1 disparaîtrait</translation>
    </message>
    <message>
        <source>%1 would be new</source>
        <translation>%1 apparaîtrait en plus</translation>
    </message>
    <message>
        <source>%1 would not be the same</source>
        <translation>%1 ne serait plus identique</translation>
    </message>
    <message>
        <source>%1 would have another link to the next directory</source>
        <translation>%1 aurait un autre lien vers le répertoire suivant</translation>
    </message>
    <message>
        <source>%1 would not have the entries that it should</source>
        <translation>%1 n’aurait pas les entrées attendues</translation>
    </message>
    <message numerus="yes">
        <source>The file would have %1 segments instead of %2</source>
        <translation>
            <numerusform>Le fichier aurait %1 segment au lieu de %2</numerusform>
            <numerusform>Le fichier aurait %1 segments au lieu de %2</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 reads %2 instead of %3</source>
        <translation>%1 contient %2 au lieu de %3</translation>
    </message>
    <message>
        <source>%1 has type %2 and count %3 instead of type %4 and count %5</source>
        <translation>%1 a le type %2 et le nombre %3 au lieu du type %4 et du nombre %5</translation>
    </message>
    <message>
        <source>%1 stands at %2 instead of %3</source>
        <translation>%1 se trouve à la position %2 au lieu de %3</translation>
    </message>
    <message>
        <source>%1 is lost</source>
        <translation>%1 a disparu</translation>
    </message>
    <message>
        <source>%1 is new</source>
        <translation>%1 apparaît en plus</translation>
    </message>
    <message>
        <source>%1 is not the same</source>
        <translation>%1 n’est plus identique</translation>
    </message>
    <message>
        <source>%1 has another link to the next directory</source>
        <translation>%1 a un autre lien vers le répertoire suivant</translation>
    </message>
    <message>
        <source>%1 does not have the entries that it should</source>
        <translation>%1 n’a pas les entrées attendues</translation>
    </message>
    <message numerus="yes">
        <source>The file has %1 segments instead of %2</source>
        <translation>
            <numerusform>Le fichier a %1 segment au lieu de %2</numerusform>
            <numerusform>Le fichier a %1 segments au lieu de %2</numerusform>
        </translation>
    </message>
    <message>
        <source>The header of the Exif segment</source>
        <translation>L’en-tête du segment Exif</translation>
    </message>
    <message>
        <source>The Exif segment</source>
        <translation>Le segment Exif</translation>
    </message>
    <message>
        <source>The image at %1</source>
        <translation>L’image en %1</translation>
    </message>
    <message>
        <source>The segment %1</source>
        <translation>Le segment %1</translation>
    </message>
    <message>
        <source>The picture, or what follows it,</source>
        <translation>L’image, ou ce qui la suit,</translation>
    </message>
    <message>
        <source>%1 shared bytes with another value, which still has them</source>
        <translation>%1 partageait des octets avec une autre valeur, qui les a toujours</translation>
    </message>
    <message>
        <source>The data after the picture names positions in the file, which are others now</source>
        <translation>Les données qui suivent l’image contiennent des positions dans le fichier, qui ont changé</translation>
    </message>
    <message numerus="yes">
        <source>%1 values changed, %2 unchanged, picture identical.</source>
        <translation>
            <numerusform>%1 valeur modifiée, %2 sans changement, image identique.</numerusform>
            <numerusform>%1 valeurs modifiées, %2 sans changement, image identique.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1. The original is kept as %2</source>
        <translation>%1. L’original est conservé sous le nom %2</translation>
    </message>
    <message>
        <source>%1. %2 was there already and stays as the original</source>
        <translation>%1. %2 existait déjà et reste l’original</translation>
    </message>
    <message numerus="yes">
        <source>%1, and %2 more</source>
        <translation>
            <numerusform>%1, et %2 autre</numerusform>
            <numerusform>%1, et %2 autres</numerusform>
        </translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Localisation</translation>
    </message>
    <message>
        <source>Serial numbers</source>
        <translation>Numéros de série</translation>
    </message>
    <message>
        <source>Names of people</source>
        <translation>Noms de personnes</translation>
    </message>
    <message>
        <source>Copyright notice</source>
        <translation>Mention de copyright</translation>
    </message>
    <message>
        <source>Titles, comments and keywords</source>
        <translation>Titres, commentaires et mots-clés</translation>
    </message>
    <message>
        <source>Unique identifiers</source>
        <translation>Identifiants uniques</translation>
    </message>
    <message>
        <source>Maker&apos;s notes</source>
        <translation>Notes du fabricant</translation>
    </message>
    <message>
        <source>Thumbnail that is not known to show the picture</source>
        <translation>Vignette qui ne montre peut-être pas l’image</translation>
    </message>
    <message>
        <source>XMP</source>
        <translation>XMP</translation>
    </message>
    <message>
        <source>IPTC and Photoshop data</source>
        <translation>Données IPTC et Photoshop</translation>
    </message>
    <message>
        <source>Comment segments</source>
        <translation>Segments de commentaire</translation>
    </message>
    <message>
        <source>Other application segments</source>
        <translation>Autres segments d’application</translation>
    </message>
    <message>
        <source>Exif data that the program does not know</source>
        <translation>Données Exif que le programme ne connaît pas</translation>
    </message>
    <message>
        <source>What follows the picture</source>
        <translation>Ce qui suit l’image</translation>
    </message>
    <message>
        <source>Unknown tag %1 in %2</source>
        <translation>Balise inconnue %1 dans %2</translation>
    </message>
    <message>
        <source>Extended XMP</source>
        <translation>XMP étendu</translation>
    </message>
    <message>
        <source>Photoshop and IPTC block</source>
        <translation>Bloc Photoshop et IPTC</translation>
    </message>
    <message>
        <source>Comment: %1</source>
        <translation>Commentaire&#xa0;: %1</translation>
    </message>
    <message>
        <source>Application segment %1 %2</source>
        <translation>Segment d’application %1 %2</translation>
    </message>
    <message>
        <source>Preview in the JFIF header</source>
        <translation>Aperçu dans l’en-tête JFIF</translation>
    </message>
    <message>
        <source>Preview in a JFIF extension</source>
        <translation>Aperçu dans une extension JFIF</translation>
    </message>
    <message>
        <source>Index of further pictures</source>
        <translation>Index d’autres images</translation>
    </message>
    <message>
        <source>Second Exif segment</source>
        <translation>Second segment Exif</translation>
    </message>
    <message>
        <source>Exif data that cannot be read in full</source>
        <translation>Données Exif qui ne peuvent pas être lues en entier</translation>
    </message>
    <message>
        <source>Bytes in the Exif data that nothing leads to</source>
        <translation>Octets des données Exif auxquels rien ne mène</translation>
    </message>
    <message>
        <source>Directory %1, which is not shown</source>
        <translation>Répertoire %1, qui n’est pas affiché</translation>
    </message>
    <message>
        <source>Thumbnail with other proportions than the picture</source>
        <translation>Vignette aux proportions différentes de celles de l’image</translation>
    </message>
    <message>
        <source>Thumbnail that shows something else than the picture</source>
        <translation>Vignette qui montre autre chose que l’image</translation>
    </message>
    <message>
        <source>Thumbnail that cannot be compared with the picture</source>
        <translation>Vignette qui ne peut pas être comparée à l’image</translation>
    </message>
    <message>
        <source>Another picture</source>
        <translation>Une autre image</translation>
    </message>
    <message>
        <source>A film</source>
        <translation>Une vidéo</translation>
    </message>
    <message>
        <source>Data of an unknown kind</source>
        <translation>Données de nature inconnue</translation>
    </message>
    <message>
        <source>The picture has no end, so nothing can be said about what follows it</source>
        <translation>L’image n’a pas de fin&#xa0;: on ne peut rien dire de ce qui la suit</translation>
    </message>
    <message>
        <source>after the picture</source>
        <translation>après l’image</translation>
    </message>
    <message>
        <source>inside the image data</source>
        <translation>à l’intérieur des données d’image</translation>
    </message>
    <message>
        <source>It stays, because the image data is never changed</source>
        <translation>Reste en place, car les données d’image ne sont jamais modifiées</translation>
    </message>
    <message>
        <source>It stays, because it cannot be told from the picture</source>
        <translation>Reste en place, car rien ne permet de le distinguer de l’image</translation>
    </message>
    <message>
        <source>It goes only with the whole Exif data</source>
        <translation>Ne disparaît qu’avec toutes les données Exif</translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 bytes, %3</source>
        <translation>
            <numerusform>%1, %2 octet, %3</numerusform>
            <numerusform>%1, %2 octets, %3</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 bytes, %3; the program cannot look into it</source>
        <translation>
            <numerusform>%1, %2 octet, %3&#x202f;; le programme ne peut pas en lire le contenu</numerusform>
            <numerusform>%1, %2 octets, %3&#x202f;; le programme ne peut pas en lire le contenu</numerusform>
        </translation>
    </message>
    <message>
        <source>%1. %2.</source>
        <translation>%1. %2.</translation>
    </message>
    <message>
        <source>Nothing was found that identifies a person or a place</source>
        <translation>Rien n’a été trouvé qui permette d’identifier une personne ou un lieu</translation>
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
        <translation>%1 IL</translation>
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
        <translation>infini</translation>
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
            <numerusform>%1 octet</numerusform>
            <numerusform>%1 octets</numerusform>
        </translation>
    </message>
    <message>
        <source>The root element is %1, not JPEG</source>
        <translation>L’élément racine est %1 et non JPEG</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>Dossier introuvable</translation>
    </message>
    <message>
        <source>No files found with search criteria specified.  Click &apos;Find Files&apos; button to try again.</source>
        <translation>Aucun fichier ne correspond aux critères de recherche.  Cliquez sur «&#xa0;Rechercher des fichiers&#xa0;» pour réessayer.</translation>
    </message>
    <message>
        <source>List of files found (%1)</source>
        <translation>Liste des fichiers trouvés (%1)</translation>
    </message>
    <message>
        <source>Checking file contents</source>
        <translation>Vérification du contenu des fichiers</translation>
    </message>
    <message numerus="yes">
        <source>%1 files could not be checked. The first: %2</source>
        <translation>
            <numerusform>%1 fichier n’a pas pu être vérifié. Le premier&#xa0;: %2</numerusform>
            <numerusform>%1 fichiers n’ont pas pu être vérifiés. Le premier&#xa0;: %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The search ended early, because %1 files could not be checked. The first: %2</source>
        <translation>
            <numerusform>La recherche s’est arrêtée avant la fin, car %1 fichier n’a pas pu être vérifié. Le premier&#xa0;: %2</numerusform>
            <numerusform>La recherche s’est arrêtée avant la fin, car %1 fichiers n’ont pas pu être vérifiés. Le premier&#xa0;: %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Open File %1</source>
        <translation>Ouverture du fichier %1</translation>
    </message>
    <message>
        <source>Read File %1</source>
        <translation>Lecture du fichier %1</translation>
    </message>
    <message>
        <source>Create file %1</source>
        <translation>Création du fichier %1</translation>
    </message>
    <message>
        <source>Write file %1</source>
        <translation>Écriture du fichier %1</translation>
    </message>
    <message>
        <source>Save XML File %1</source>
        <translation>Enregistrement du fichier XML %1</translation>
    </message>
    <message>
        <source>Internal XML document corrupt</source>
        <translation>Document XML interne corrompu</translation>
    </message>
    <message>
        <source>Transform XML</source>
        <translation>Transformation XML</translation>
    </message>
    <message>
        <source>loadXML</source>
        <translation>Chargement du XML</translation>
    </message>
    <message>
        <source>Internal JpegXml document error</source>
        <translation>Erreur interne du document JpegXml</translation>
    </message>
    <message>
        <source>Invalid picture</source>
        <translation>Image non valide</translation>
    </message>
    <message>
        <source>Invalid thumbnail</source>
        <translation>Vignette non valide</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Ouverture de %1</translation>
    </message>
    <message>
        <source>No program was found that opens it</source>
        <translation>Aucun programme permettant de l’ouvrir n’a été trouvé</translation>
    </message>
    <message>
        <source>The document has other frames or tables than the file, which would change the picture</source>
        <translation>Le document a d’autres trames ou tables que le fichier, ce qui modifierait l’image</translation>
    </message>
</context>
<context>
    <name>NodeAddForm</name>
    <message>
        <source>Node Add</source>
        <translation>Ajout d’un nœud</translation>
    </message>
    <message>
        <source>Select the Node to add to the image</source>
        <translation>Sélectionnez le nœud à ajouter à l’image</translation>
    </message>
    <message>
        <source>&amp;Node</source>
        <translation>&amp;Nœud</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>Nœud</translation>
    </message>
    <message>
        <source>&amp;Add Node</source>
        <translation>&amp;Ajouter le nœud</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Ann&amp;uler</translation>
    </message>
    <message>
        <source>The property to add</source>
        <translation>La propriété à ajouter</translation>
    </message>
    <message>
        <source>Adds the selected property to the photograph</source>
        <translation>Ajoute à la photo la propriété sélectionnée</translation>
    </message>
    <message>
        <source>Closes the dialog and adds nothing</source>
        <translation>Ferme la fenêtre sans rien ajouter</translation>
    </message>
</context>
<context>
    <name>PrivateForm</name>
    <message>
        <source>What Does It Tell?</source>
        <translation>Que révèle la photo&#x202f;?</translation>
    </message>
    <message>
        <source>This is what the &amp;photograph tells of people and places. Select what you want to delete; it is gone from the file when you save.</source>
        <translation>Voici ce que la &amp;photo révèle sur des personnes et des lieux. Sélectionnez ce que vous voulez supprimer&#x202f;; l’enregistrement l’effacera du fichier.</translation>
    </message>
    <message>
        <source>What the photograph tells</source>
        <translation>Ce que révèle la photo</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Élément</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>Octets</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>Emplacement</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Remarque</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message>
        <source>&amp;Delete Selected</source>
        <translation>&amp;Supprimer la sélection</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>The space bar ticks what is to be deleted</source>
        <translation>La barre d’espace coche ce qui doit être supprimé</translation>
    </message>
    <message>
        <source>Ticks everything that can be deleted</source>
        <translation>Coche tout ce qui peut être supprimé</translation>
    </message>
    <message>
        <source>Deletes what is ticked; it is gone from the file when you save</source>
        <translation>Supprime ce qui est coché&#x202f;; le fichier le perd quand vous l’enregistrez</translation>
    </message>
    <message>
        <source>Closes the dialog and deletes nothing</source>
        <translation>Ferme la fenêtre sans rien supprimer</translation>
    </message>
</context>
<context>
    <name>ProgressForm</name>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Files done</source>
        <translation>Fichiers traités</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Stops before the next file; what is done stays done</source>
        <translation>S’arrête avant le fichier suivant&#x202f;; ce qui est fait reste fait</translation>
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
        <translation>&amp;Oui</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Non</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>en</source>
        <extracomment>The code of the language that you translate into, such as &quot;de&quot; or &quot;zh-CN&quot;</extracomment>
        <translation>fr</translation>
    </message>
    <message numerus="yes">
        <source>%n photographs</source>
        <translation>
            <numerusform>%n photo</numerusform>
            <numerusform>%n photos</numerusform>
        </translation>
    </message>
    <message>
        <source>Shots</source>
        <extracomment>The photographs that were taken: the title of a table</extracomment>
        <translation>Prises de vue</translation>
    </message>
    <message>
        <source>Photograph</source>
        <translation>Photo</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Appareil</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>Objectif</translation>
    </message>
    <message>
        <source>Time</source>
        <extracomment>Exposure time</extracomment>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>Aperture</source>
        <translation>Ouverture</translation>
    </message>
    <message>
        <source>ISO</source>
        <translation>ISO</translation>
    </message>
    <message>
        <source>Focal length</source>
        <translation>Focale</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Lieu</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistiques</translation>
    </message>
    <message>
        <source>Sensitivity</source>
        <translation>Sensibilité</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Mois</translation>
    </message>
    <message>
        <source>not known</source>
        <extracomment>A camera, a focal length, a sensitivity or a month</extracomment>
        <translation>sans indication</translation>
    </message>
</context>
<context>
    <name>SlideForm</name>
    <message>
        <source>Slide Show</source>
        <translation>Diaporama</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Détails</translation>
    </message>
</context>
<context>
    <name>SlideShowOptionForm</name>
    <message>
        <source>Slide Show</source>
        <translation>Diaporama</translation>
    </message>
    <message>
        <source>Full screen?</source>
        <translation>Plein écran&#x202f;?</translation>
    </message>
    <message>
        <source>Show Slide show full screen or in a window?</source>
        <translation>Afficher le diaporama en plein écran ou dans une fenêtre&#x202f;?</translation>
    </message>
    <message>
        <source>Resize large images?</source>
        <translation>Réduire les grandes images&#x202f;?</translation>
    </message>
    <message>
        <source>Resize large images to fit the slide window?</source>
        <translation>Réduire les grandes images à la taille de la fenêtre du diaporama&#x202f;?</translation>
    </message>
    <message>
        <source>Show Details?</source>
        <translation>Afficher les détails&#x202f;?</translation>
    </message>
    <message>
        <source>Show details fo each file as it displays</source>
        <translation>Afficher les détails de chaque fichier pendant son affichage</translation>
    </message>
    <message>
        <source>Seconds/Slide</source>
        <translation>Secondes/image</translation>
    </message>
    <message>
        <source>Number of seconds to show each  image. Enter 0 (zero) for manual control.</source>
        <translation>Durée d’affichage de chaque image, en secondes. Saisissez 0 (zéro) pour avancer à la main.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Starts the slide show</source>
        <translation>Lance le diaporama</translation>
    </message>
    <message>
        <source>Closes the dialog and starts no show</source>
        <translation>Ferme la fenêtre sans lancer le diaporama</translation>
    </message>
</context>
<context>
    <name>ValueLine</name>
    <message>
        <source>Only whole numbers from 0 to 65535 can be written.</source>
        <translation>Seuls des nombres entiers de 0 à 65535 peuvent être écrits.</translation>
    </message>
    <message>
        <source>Only whole numbers from 0 to 4294967295 can be written.</source>
        <translation>Seuls des nombres entiers de 0 à 4294967295 peuvent être écrits.</translation>
    </message>
    <message>
        <source>Only numbers such as 2.5 can be written.</source>
        <translation>Seuls des nombres tels que 2.5, avec un point, peuvent être écrits.</translation>
    </message>
    <message>
        <source>Only whole numbers from -32768 to 32767 can be written.</source>
        <translation>Seuls des nombres entiers de -32768 à 32767 peuvent être écrits.</translation>
    </message>
    <message>
        <source>Only whole numbers from -2147483648 to 2147483647 can be written.</source>
        <translation>Seuls des nombres entiers de -2147483648 à 2147483647 peuvent être écrits.</translation>
    </message>
    <message>
        <source>Only fractions such as 1/125, up to 4294967295, can be written.</source>
        <translation>Seules des fractions telles que 1/125, jusqu’à 4294967295, peuvent être écrites.</translation>
    </message>
    <message>
        <source>Only fractions such as -1/3, up to 2147483647, can be written.</source>
        <translation>Seules des fractions telles que -1/3, jusqu’à 2147483647, peuvent être écrites.</translation>
    </message>
    <message>
        <source>Cannot be written: %1</source>
        <translation>Écriture impossible&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Shows and edits the metadata of JPEG files.</source>
        <translation>Affiche et modifie les métadonnées des fichiers JPEG.</translation>
    </message>
    <message>
        <source>Photographs to list, and folders of them</source>
        <translation>Photos et dossiers de photos à mettre dans la liste</translation>
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
        <translation>Réalisé avec %1.</translation>
    </message>
    <message>
        <source>System: %1</source>
        <translation>Système&#xa0;: %1</translation>
    </message>
    <message>
        <source>Kernel: %1 %2</source>
        <translation>Noyau&#xa0;: %1 %2</translation>
    </message>
    <message>
        <source>Computer: %1</source>
        <translation>Ordinateur&#xa0;: %1</translation>
    </message>
    <message numerus="yes">
        <source>Processor: %1, %Ln cores</source>
        <translation>
            <numerusform>Processeur&#xa0;: %1, %Ln cœur</numerusform>
            <numerusform>Processeur&#xa0;: %1, %Ln cœurs</numerusform>
        </translation>
    </message>
    <message>
        <source>Window system: %1</source>
        <translation>Système de fenêtrage&#xa0;: %1</translation>
    </message>
    <message>
        <source>Screen: %1 x %2</source>
        <translation>Écran&#xa0;: %1 × %2</translation>
    </message>
</context>
<context>
    <name>ovisto::AwakeScreen</name>
    <message>
        <source>A slide show is running</source>
        <translation>Un diaporama est en cours</translation>
    </message>
</context>
<context>
    <name>ovisto::BatchForm</name>
    <message numerus="yes">
        <source>The list has %Ln files.</source>
        <translation>
            <numerusform>La liste contient %Ln fichier.</numerusform>
            <numerusform>La liste contient %Ln fichiers.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ovisto::BatchResults</name>
    <message>
        <source>failed: %1</source>
        <translation>échec&#xa0;: %1</translation>
    </message>
    <message>
        <source>not reached</source>
        <translation>non traité</translation>
    </message>
    <message>
        <source>unchanged</source>
        <translation>inchangé</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>modifié</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
</context>
<context>
    <name>ovisto::ControlForm</name>
    <message>
        <source>Goes with &quot;Keep Untouched Data?&quot;: what is written anew is read in the basic way.</source>
        <translation>Va de pair avec «&#xa0;Conserver les données non modifiées&#x202f;?&#xa0;»&#xa0;: ce qui est réécrit est lu en mode de base.</translation>
    </message>
</context>
<context>
    <name>ovisto::Editor</name>
    <message>
        <source>Metadata saved as %1</source>
        <translation>Métadonnées enregistrées sous %1</translation>
    </message>
    <message>
        <source>All previous edits have been ignored, except for<byte value="xd"/>
nodes removed according to the Options menu.</source>
        <translation>Toutes les modifications précédentes ont été ignorées, sauf<byte value="xd"/>
la suppression de nœuds demandée par le menu Options.</translation>
    </message>
    <message>
        <source>Everything has to be read first. Switch on &quot;Keep Untouched Data?&quot; and<byte value="xd"/>
&quot;Read Everything?&quot; in the Options menu, and open the file again.</source>
        <translation>Il faut d’abord tout lire. Activez «&#xa0;Conserver les données non modifiées&#x202f;?&#xa0;» et<byte value="xd"/>
«&#xa0;Tout lire&#x202f;?&#xa0;» dans le menu Options, puis rouvrez le fichier.</translation>
    </message>
    <message>
        <source>Save Changes to file %1?</source>
        <translation>Enregistrer les modifications du fichier %1&#x202f;?</translation>
    </message>
    <message>
        <source>Another program changed the file %1 after it was opened here.<byte value="xd"/>
<byte value="xd"/>
Save Over It: the file gets all values as they are shown here.<byte value="xd"/>
Read It Again: what you changed here is given up, and the file is shown as it is now.</source>
        <translation>Un autre programme a modifié le fichier %1 depuis son ouverture ici.<byte value="xd"/>
<byte value="xd"/>
Enregistrer quand même&#xa0;: le fichier reçoit toutes les valeurs affichées ici.<byte value="xd"/>
Relire&#xa0;: vos modifications sont abandonnées, et le fichier est affiché tel qu’il est maintenant.</translation>
    </message>
    <message>
        <source>&amp;Save Over It</source>
        <translation>&amp;Enregistrer quand même</translation>
    </message>
    <message>
        <source>&amp;Read It Again</source>
        <translation>&amp;Relire</translation>
    </message>
    <message>
        <source>%1 saved: %2</source>
        <translation>%1 enregistré&#xa0;: %2</translation>
    </message>
    <message>
        <source>Lost, as &quot;Keep Untouched Data?&quot; is off: %1</source>
        <translation>Pertes, car «&#xa0;Conserver les données non modifiées&#x202f;?&#xa0;» est désactivé&#xa0;: %1</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Abandonner</translation>
    </message>
    <message>
        <source>Discard the changes to file %1 and read it again?</source>
        <translation>Abandonner les modifications du fichier %1 et le relire&#x202f;?</translation>
    </message>
</context>
<context>
    <name>ovisto::FileListPane</name>
    <message>
        <source>The folder %1 is not there. Nothing was removed from the list.<byte value="xd"/>
Check that the disk or card is connected, and click the photograph again.</source>
        <translation>Le dossier %1 n’est pas là. Rien n’a été retiré de la liste.<byte value="xd"/>
Vérifiez que le disque ou la carte est en place, puis cliquez de nouveau sur la photo.</translation>
    </message>
</context>
<context>
    <name>ovisto::GapMark</name>
    <message>
        <source>Arrow keys move the gap, F8 goes to the next one, Esc goes back</source>
        <translation>Les touches fléchées déplacent la séparation, F8 passe à la suivante, Échap revient</translation>
    </message>
</context>
<context>
    <name>ovisto::KeywordPane</name>
    <message>
        <source>*.TXT (*.TXT *.txt);;All Files (*)</source>
        <translation>*.TXT (*.TXT *.txt);;Tous les fichiers (*)</translation>
    </message>
</context>
<context>
    <name>ovisto::LeftOutLine</name>
    <message>
        <source>Saving leaves out: %1</source>
        <translation>L’enregistrement laisse de côté&#xa0;: %1</translation>
    </message>
    <message>
        <source>Enter opens the menu at the option</source>
        <translation>Entrée ouvre le menu à cette option</translation>
    </message>
</context>
<context>
    <name>ovisto::ListActions</name>
    <message numerus="yes">
        <source>Lost something in %L1 of %Ln files, as &quot;Keep Untouched Data?&quot; is off. The originals are kept as NAME.original.</source>
        <translation>
            <numerusform>Pertes dans %L1 fichier sur %Ln, car «&#xa0;Conserver les données non modifiées&#x202f;?&#xa0;» est désactivé. Les originaux sont conservés sous NOM.original.</numerusform>
            <numerusform>Pertes dans %L1 des %Ln fichiers, car «&#xa0;Conserver les données non modifiées&#x202f;?&#xa0;» est désactivé. Les originaux sont conservés sous NOM.original.</numerusform>
        </translation>
    </message>
    <message>
        <source>Open Report</source>
        <translation>Ouvrir un rapport</translation>
    </message>
    <message>
        <source>XSL (*.xsl *.XSL);;All Files (*.*) (*)</source>
        <translation>XSL (*.xsl *.XSL);;Tous les fichiers (*.*) (*)</translation>
    </message>
</context>
<context>
    <name>ovisto::PictureBox</name>
    <message>
        <source>This file cannot be shown as a picture.</source>
        <translation>Ce fichier ne peut pas être affiché sous forme d’image.</translation>
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
        <translation>Ovisto ne peut pas en lire le contenu.</translation>
    </message>
</context>
<context>
    <name>ovisto::PropertyPane</name>
    <message>
        <source>No properties to show.</source>
        <translation>Aucune propriété à afficher.</translation>
    </message>
    <message>
        <source>Unexpected error - Node &apos;%1&apos; not found. Please reload the file.</source>
        <translation>Erreur inattendue – nœud «&#xa0;%1&#xa0;» introuvable. Veuillez rouvrir le fichier.</translation>
    </message>
    <message>
        <source>Click on a node in the property NodeTree to select a value first.</source>
        <translation>Cliquez d’abord sur un nœud de l’arborescence des propriétés pour sélectionner une valeur.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Delete %1 and all that belongs to it?</source>
        <translation>Supprimer %1 et tout ce qui en dépend&#x202f;?</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Delete %1?</source>
        <translation>Supprimer %1&#x202f;?</translation>
    </message>
</context>
<context>
    <name>ovisto::PropertySheet</name>
    <message>
        <source>Properties of %1</source>
        <translation>Propriétés de %1</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nom&#xa0;:</translation>
    </message>
    <message>
        <source>Folder:</source>
        <translation>Dossier&#xa0;:</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Type&#xa0;:</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Taille&#xa0;:</translation>
    </message>
    <message numerus="yes">
        <source>%1 bytes</source>
        <translation>
            <numerusform>%1 octet</numerusform>
            <numerusform>%1 octets</numerusform>
        </translation>
    </message>
    <message>
        <source>Changed:</source>
        <translation>Modifié&#xa0;:</translation>
    </message>
    <message>
        <source>Last read:</source>
        <translation>Dernière lecture&#xa0;:</translation>
    </message>
    <message>
        <source>Owner:</source>
        <translation>Propriétaire&#xa0;:</translation>
    </message>
    <message>
        <source>Access:</source>
        <translation>Accès&#xa0;:</translation>
    </message>
    <message>
        <source>Can be read and changed</source>
        <translation>Lecture et modification</translation>
    </message>
    <message>
        <source>Can be read only</source>
        <translation>Lecture seule</translation>
    </message>
    <message>
        <source>Closes this window</source>
        <translation>Ferme cette fenêtre</translation>
    </message>
</context>
<context>
    <name>ovisto::RecentMenu</name>
    <message>
        <source>No folder was searched yet</source>
        <translation>Aucun dossier n’a encore été parcouru</translation>
    </message>
    <message>
        <source>&amp;Clear This List</source>
        <translation>&amp;Effacer cette liste</translation>
    </message>
</context>
<context>
    <name>ovisto::SlideForm</name>
    <message>
        <source>Press ESC or click the image to exit show,<byte value="xd"/>
left/right arrow to skip slides,<byte value="xd"/>
space to pause/unpause.</source>
        <translation>Échap ou clic sur l’image&#xa0;: quitter le diaporama,<byte value="xd"/>
flèche gauche ou droite&#xa0;: changer d’image,<byte value="xd"/>
espace&#xa0;: mettre en pause ou reprendre.</translation>
    </message>
    <message>
        <source>The picture ends early: part of the file is missing.</source>
        <translation>L’image s’arrête avant la fin&#xa0;: il manque une partie du fichier.</translation>
    </message>
    <message>
        <source>%1 (paused)</source>
        <translation>%1 (en pause)</translation>
    </message>
    <message>
        <source>Slide Show</source>
        <translation>Diaporama</translation>
    </message>
</context>
</TS>
