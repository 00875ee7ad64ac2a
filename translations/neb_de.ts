<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>neb</name>
    <message>
        <location filename="../src/albums/BulkSlides.cpp"/>
        <source>
Failed to %1 %2 slides.</source>
        <translation>
%2 Dias konnten nicht %1 werden.</translation>
    </message>
    <message>
        <location filename="../src/albums/BulkSlides.cpp"/>
        <source>%1 slides successfully %2.</source>
        <translation>%1 Dias erfolgreich %2.</translation>
    </message>
    <message>
        <location filename="../src/albums/KeepingChoice.cpp"/>
        <source>1024 x 768</source>
        <translation>1024 x 768</translation>
    </message>
    <message>
        <location filename="../src/albums/KeepingChoice.cpp"/>
        <source>1920 x 1080</source>
        <translation>1920 x 1080</translation>
    </message>
    <message>
        <location filename="../src/albums/KeepingChoice.cpp"/>
        <source>3840 x 2160</source>
        <translation>3840 x 2160</translation>
    </message>
    <message>
        <location filename="../src/albums/KeepingChoice.cpp"/>
        <source>The largest screen (%1)</source>
        <translation>Der größte Bildschirm (%1)</translation>
    </message>
    <message>
        <location filename="../src/albums/KeepingChoice.cpp"/>
        <source>Their own size</source>
        <translation>Ihre eigene Größe</translation>
    </message>
    <message>
        <location filename="../src/albums/PictureCheck.cpp"/>
        <source> in the album &quot;%1&quot;: </source>
        <translation> im Album „%1“: </translation>
    </message>
    <message>
        <location filename="../src/albums/PictureCheck.cpp"/>
        <source> of slide %1</source>
        <translation> von Dia %1</translation>
    </message>
    <message>
        <location filename="../src/albums/PictureCheck.cpp"/>
        <source>cannot be read: </source>
        <translation>nicht lesbar: </translation>
    </message>
    <message>
        <location filename="../src/albums/PictureCheck.cpp"/>
        <source>changed: </source>
        <translation>verändert: </translation>
    </message>
    <message>
        <location filename="../src/albums/PictureCheck.cpp"/>
        <source>empty: </source>
        <translation>leer: </translation>
    </message>
    <message>
        <location filename="../src/albums/PictureCheck.cpp"/>
        <source>missing: </source>
        <translation>fehlt: </translation>
    </message>
    <message>
        <location filename="../src/albums/PictureCheck.cpp"/>
        <source>no slide or show has it: </source>
        <translation>gehört zu keinem Dia und keiner Diashow: </translation>
    </message>
    <message>
        <location filename="../src/albums/PictureCheck.cpp"/>
        <source>sound track %1 of show %2</source>
        <translation>Tonspur %1 der Diashow %2</translation>
    </message>
    <message>
        <location filename="../src/albums/PictureCheck.cpp"/>
        <source>the picture</source>
        <translation>das Bild</translation>
    </message>
    <message>
        <location filename="../src/albums/PictureCheck.cpp"/>
        <source>the sound</source>
        <translation>der Ton</translation>
    </message>
    <message>
        <location filename="../src/albums/PictureCheck.cpp"/>
        <source>the thumbnail</source>
        <translation>das Vorschaubild</translation>
    </message>
    <message>
        <location filename="../src/albums/SlideSave.cpp"/>
        <source>Could not find the album.</source>
        <translation>Das Album wurde nicht gefunden.</translation>
    </message>
    <message>
        <location filename="../src/albums/SlideSave.cpp"/>
        <source>Could not find the slide.</source>
        <translation>Das Dia wurde nicht gefunden.</translation>
    </message>
    <message>
        <location filename="../src/albums/SlideSave.cpp"/>
        <source>Failed to save slide.</source>
        <translation>Das Dia konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <location filename="../src/albums/SlideSave.cpp"/>
        <source>Missing Slide</source>
        <translation>Fehlendes Dia</translation>
    </message>
    <message>
        <location filename="../src/albums/SlideSave.cpp"/>
        <source>Slide Missing</source>
        <translation>Dia fehlt</translation>
    </message>
    <message>
        <location filename="../src/albums/SlideSave.cpp"/>
        <source>The Current Slide Appears to be Corrupt.</source>
        <translation>Das aktuelle Dia scheint beschädigt zu sein.</translation>
    </message>
    <message>
        <location filename="../src/albums/SlideSave.cpp"/>
        <source>The currently selected slide cannot be found.
You must select a new picture you want to use for this slide.</source>
        <translation>Das gewählte Dia ist nicht auffindbar.
Bitte wählen Sie ein neues Bild für dieses Dia.</translation>
    </message>
    <message>
        <location filename="../src/albums/SlideSave.cpp"/>
        <source>The graphic for the current slide appears to have been deleted.
Double Slick on the Slide Spaceholder to browse for it.</source>
        <translation>Das Bild des aktuellen Dias wurde offenbar gelöscht.
Doppelklicken Sie auf den Platzhalter, um es zu suchen.</translation>
    </message>
    <message>
        <location filename="../src/albums/SlideSave.cpp"/>
        <source>Turn Slide</source>
        <translation>Dia drehen</translation>
    </message>
    <message>
        <location filename="../src/albums/SlideSave.cpp"/>
        <source>You must first select the picture you want to use for this slide.</source>
        <translation>Bitte wählen Sie zuerst das Bild für dieses Dia.</translation>
    </message>
    <message>
        <location filename="../src/albums/TrackRanges.cpp"/>
        <source>Choose the sound files first; all slides are then spread over them.</source>
        <translation>Wählen Sie zuerst die Tondateien; alle Dias werden dann auf sie verteilt.</translation>
    </message>
    <message>
        <location filename="../src/albums/TrackRanges.cpp"/>
        <source>Fit All</source>
        <translation>Alle anpassen</translation>
    </message>
    <message>
        <location filename="../src/albums/TrackRanges.cpp"/>
        <source>There are more sound tracks (%1) than slides in the show (%2). Each track needs a slide at least.</source>
        <translation>Es gibt mehr Tonspuren (%1) als Dias in der Diashow (%2). Jede Spur braucht mindestens ein Dia.</translation>
    </message>
    <message>
        <location filename="../src/albums/library/ProposedName.cpp"/>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <location filename="../src/albums/modImport.cpp"/>
        <source>The Album was not found.</source>
        <translation>Das Album wurde nicht gefunden.</translation>
    </message>
    <message>
        <location filename="../src/albums/modImport.cpp"/>
        <source>The file is not there any more.</source>
        <translation>Die Datei ist nicht mehr da.</translation>
    </message>
    <message>
        <location filename="../src/albums/modLoadShow.cpp"/>
        <source>Album not found.</source>
        <translation>Album nicht gefunden.</translation>
    </message>
    <message>
        <location filename="../src/albums/modLoadShow.cpp"/>
        <source>Slide Show not found.</source>
        <translation>Diashow nicht gefunden.</translation>
    </message>
    <message>
        <location filename="../src/albums/modPictureFiles.cpp"/>
        <source>This directory is reserved for Albums.  You cannot import from it.</source>
        <translation>Dieser Ordner ist den Alben vorbehalten. Aus ihm kann nicht importiert werden.</translation>
    </message>
    <message>
        <location filename="../src/albums/modSaveShow.cpp"/>
        <source> and </source>
        <translation> und </translation>
    </message>
    <message>
        <location filename="../src/albums/modSaveShow.cpp"/>
        <source>A Slide Show with this name already exists in this Album.</source>
        <translation>In diesem Album gibt es schon eine Diashow mit diesem Namen.</translation>
    </message>
    <message>
        <location filename="../src/albums/modSaveShow.cpp"/>
        <source>A slide cannot use more than 1 sound track.</source>
        <translation>Ein Dia kann nur zu einer Tonspur gehören.</translation>
    </message>
    <message>
        <location filename="../src/albums/modSaveShow.cpp"/>
        <source>Delete Detected</source>
        <translation>Zwischenzeitlich gelöscht</translation>
    </message>
    <message>
        <location filename="../src/albums/modSaveShow.cpp"/>
        <source>Failed to create Slide Show.</source>
        <translation>Die Diashow konnte nicht angelegt werden.</translation>
    </message>
    <message>
        <location filename="../src/albums/modSaveShow.cpp"/>
        <source>Incomplete Sound Track</source>
        <translation>Unvollständige Tonspur</translation>
    </message>
    <message>
        <location filename="../src/albums/modSaveShow.cpp"/>
        <source>Invalid Option Combination</source>
        <translation>Nicht vereinbare Einstellungen</translation>
    </message>
    <message>
        <location filename="../src/albums/modSaveShow.cpp"/>
        <source>Invalid Slide Sequence</source>
        <translation>Ungültige Folge von Dias</translation>
    </message>
    <message>
        <location filename="../src/albums/modSaveShow.cpp"/>
        <source>Slide Show Name Already In Use</source>
        <translation>Name der Diashow schon vergeben</translation>
    </message>
    <message>
        <location filename="../src/albums/modSaveShow.cpp"/>
        <source>Slide show names must be &lt;= 80 characters long.</source>
        <translation>Namen von Diashows dürfen höchstens 80 Zeichen lang sein.</translation>
    </message>
    <message>
        <location filename="../src/albums/modSaveShow.cpp"/>
        <source>Sound track %1 lacks %2. Complete its row, or empty it with the Del key.</source>
        <translation>Der Tonspur %1 fehlt %2. Füllen Sie die Zeile aus, oder leeren Sie sie mit der Taste Entf.</translation>
    </message>
    <message>
        <location filename="../src/albums/modSaveShow.cpp"/>
        <source>The Ending Slide # must be &lt;= the total number of slides in the show.</source>
        <translation>Die Nummer des letzten Dias darf nicht größer sein als die Zahl der Dias in der Diashow.</translation>
    </message>
    <message>
        <location filename="../src/albums/modSaveShow.cpp"/>
        <source>The Ending Slide # must be &gt;= the Starting Slide #.</source>
        <translation>Das letzte Dia darf nicht vor dem ersten liegen.</translation>
    </message>
    <message>
        <location filename="../src/albums/modSaveShow.cpp"/>
        <source>The Slide Show you are editing no longer appears to exist.</source>
        <translation>Die Diashow, die Sie bearbeiten, gibt es offenbar nicht mehr.</translation>
    </message>
    <message>
        <location filename="../src/albums/modSaveShow.cpp"/>
        <source>The Starting Slide # must be &gt;=1.</source>
        <translation>Die Nummer des ersten Dias muss mindestens 1 sein.</translation>
    </message>
    <message>
        <location filename="../src/albums/modSaveShow.cpp"/>
        <source>The current Album could not be found.</source>
        <translation>Das aktuelle Album wurde nicht gefunden.</translation>
    </message>
    <message>
        <location filename="../src/albums/modSaveShow.cpp"/>
        <source>You cannot select both Fade and Manual Progression.</source>
        <translation>„Ausblenden“ und „Von Hand“ sind nicht zusammen möglich.</translation>
    </message>
    <message>
        <location filename="../src/albums/modSaveShow.cpp"/>
        <source>You cannot select both Fit To Song and Manual Progression.</source>
        <translation>„An Lied anpassen“ und „Von Hand“ sind nicht zusammen möglich.</translation>
    </message>
    <message>
        <location filename="../src/albums/modSaveShow.cpp"/>
        <source>You have to enter a name for the slide show.</source>
        <translation>Bitte geben Sie der Diashow einen Namen.</translation>
    </message>
    <message>
        <location filename="../src/albums/modSaveShow.cpp"/>
        <source>You must first select an album to save the slide show in.</source>
        <translation>Bitte wählen Sie zuerst ein Album, in dem die Diashow gespeichert werden soll.</translation>
    </message>
    <message>
        <location filename="../src/albums/modSaveShow.cpp"/>
        <source>You must select atleast 1 slide for the Slide Show.</source>
        <translation>Bitte wählen Sie mindestens ein Dia für die Diashow.</translation>
    </message>
    <message>
        <location filename="../src/albums/modSaveShow.cpp"/>
        <source>a first slide</source>
        <translation>ein erstes Dia</translation>
    </message>
    <message>
        <location filename="../src/albums/modSaveShow.cpp"/>
        <source>a last slide</source>
        <translation>ein letztes Dia</translation>
    </message>
    <message>
        <location filename="../src/albums/modSaveShow.cpp"/>
        <source>a sound file</source>
        <translation>eine Tondatei</translation>
    </message>
    <message>
        <location filename="../src/albums/transfer/DiscFolder.cpp"/>
        <source>%1 album</source>
        <translation>%1 Album</translation>
    </message>
    <message>
        <location filename="../src/albums/transfer/DiscFolder.cpp"/>
        <source>%1 albums</source>
        <translation>%1 Alben</translation>
    </message>
    <message>
        <location filename="../src/albums/transfer/DiscFolder.cpp"/>
        <source>%1 is a file and no folder.</source>
        <translation>%1 ist eine Datei und kein Ordner.</translation>
    </message>
    <message>
        <location filename="../src/albums/transfer/DiscFolder.cpp"/>
        <source>%1 slide</source>
        <translation>%1 Dia</translation>
    </message>
    <message>
        <location filename="../src/albums/transfer/DiscFolder.cpp"/>
        <source>%1 slide show</source>
        <translation>%1 Diashow</translation>
    </message>
    <message>
        <location filename="../src/albums/transfer/DiscFolder.cpp"/>
        <source>%1 slide shows</source>
        <translation>%1 Diashows</translation>
    </message>
    <message>
        <location filename="../src/albums/transfer/DiscFolder.cpp"/>
        <source>%1 slides</source>
        <translation>%1 Dias</translation>
    </message>
    <message>
        <location filename="../src/albums/transfer/DiscFolder.cpp"/>
        <source>Failed to load the source album.</source>
        <translation>Das Quellalbum konnte nicht geladen werden.</translation>
    </message>
    <message>
        <location filename="../src/albums/transfer/DiscFolder.cpp"/>
        <source>Invalid User Input</source>
        <translation>Ungültige Eingabe</translation>
    </message>
    <message>
        <location filename="../src/albums/transfer/DiscFolder.cpp"/>
        <source>The folder %1 is not empty.
Choose an empty folder, or give the name of one that is to be made.</source>
        <translation>Der Ordner %1 ist nicht leer.
Wählen Sie einen leeren Ordner, oder nennen Sie einen, der angelegt werden soll.</translation>
    </message>
    <message>
        <location filename="../src/albums/transfer/DiscFolder.cpp"/>
        <source>The folder %1 lies among the albums themselves.
Choose one elsewhere.</source>
        <translation>Der Ordner %1 liegt bei den Alben selbst.
Wählen Sie einen anderen.</translation>
    </message>
    <message>
        <location filename="../src/albums/transfer/DiscProgress.cpp"/>
        <source>check sums: </source>
        <translation>Prüfsummen: </translation>
    </message>
    <message>
        <location filename="../src/albums/transfer/DiscProgress.cpp"/>
        <source>file %1 of %2, %3 of %4</source>
        <translation>Datei %1 von %2, %3 von %4</translation>
    </message>
    <message>
        <location filename="../src/albums/transfer/FileStage.cpp"/>
        <source>Operation Unsuccessful</source>
        <translation>Nicht gelungen</translation>
    </message>
    <message>
        <location filename="../src/albums/transfer/FileStage.cpp"/>
        <source>The album at the destination is a link to the album at the source.</source>
        <translation>Das Album am Ziel ist nur ein Verweis auf das Album an der Quelle.</translation>
    </message>
    <message>
        <location filename="../src/albums/transfer/FileStage.cpp"/>
        <source>There is a folder in the place of a file.</source>
        <translation>An der Stelle einer Datei steht ein Ordner.</translation>
    </message>
    <message>
        <location filename="../src/albums/transfer/FileStage.cpp"/>
        <source>There is not enough room: %1 are needed, %2 are free in
%3</source>
        <translation>Der Platz reicht nicht: %1 werden gebraucht, %2 sind frei in
%3</translation>
    </message>
    <message>
        <location filename="../src/albums/transfer/FileStage.cpp"/>
        <source>You have no permission to write in the folder.</source>
        <translation>Sie dürfen in diesen Ordner nicht schreiben.</translation>
    </message>
    <message>
        <location filename="../src/albums/transfer/OtherDatabase.cpp"/>
        <source>Damaged Database</source>
        <translation>Beschädigte Datenbank</translation>
    </message>
    <message>
        <location filename="../src/albums/transfer/OtherDatabase.cpp"/>
        <source>Database In Use</source>
        <translation>Datenbank in Gebrauch</translation>
    </message>
    <message>
        <location filename="../src/albums/transfer/OtherDatabase.cpp"/>
        <source>Invalid Directory</source>
        <translation>Ungültiger Ordner</translation>
    </message>
    <message>
        <location filename="../src/albums/transfer/OtherDatabase.cpp"/>
        <source>NextIDs.dat in
%1
is missing or damaged, so that new pictures might replace old ones. nebctl check tells more.</source>
        <translation>NextIDs.dat in
%1
fehlt oder ist beschädigt, sodass neue Bilder alte ersetzen könnten. „nebctl check“ sagt mehr.</translation>
    </message>
    <message>
        <location filename="../src/albums/transfer/OtherDatabase.cpp"/>
        <source>Read-Only Database</source>
        <translation>Schreibgeschützte Datenbank</translation>
    </message>
    <message>
        <location filename="../src/albums/transfer/OtherDatabase.cpp"/>
        <source>The database in
%1
cannot be locked: %2.</source>
        <translation>Die Datenbank in
%1
kann nicht gesperrt werden: %2.</translation>
    </message>
    <message>
        <location filename="../src/albums/transfer/OtherDatabase.cpp"/>
        <source>The database in
%1
is damaged. It has not been changed.

%2

Open it with the program, which offers to bring its last good albums back or to go on with what is left.</source>
        <translation>Die Datenbank in
%1
ist beschädigt. Sie wurde nicht verändert.

%2

Öffnen Sie sie mit dem Programm: Es bietet an, die letzten heilen Alben zurückzuholen oder mit dem weiterzumachen, was übrig ist.</translation>
    </message>
    <message>
        <location filename="../src/albums/transfer/OtherDatabase.cpp"/>
        <source>The database in
%1
is in use on the computer &quot;%2&quot;. Close it there and try again. If the program has crashed there, open that database by itself first: it then asks whether to go on.</source>
        <translation>Die Datenbank in
%1
ist auf dem Rechner „%2“ in Gebrauch. Schließen Sie sie dort, und versuchen Sie es noch einmal. Ist das Programm dort abgestürzt, öffnen Sie diese Datenbank zuerst für sich allein: Dann werden Sie gefragt, ob es weitergehen soll.</translation>
    </message>
    <message>
        <location filename="../src/albums/transfer/OtherDatabase.cpp"/>
        <source>The database in
%1
is in use. Close it there and try again.</source>
        <translation>Die Datenbank in
%1
ist in Gebrauch. Schließen Sie sie dort, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <location filename="../src/albums/transfer/OtherDatabase.cpp"/>
        <source>The database in
%1
is read-only.</source>
        <translation>Die Datenbank in
%1
ist schreibgeschützt.</translation>
    </message>
    <message>
        <location filename="../src/albums/transfer/OtherDatabase.cpp"/>
        <source>The directory lies among the files of the database in
%1
Choose one elsewhere.</source>
        <translation>Der Ordner liegt zwischen den Dateien der Datenbank in
%1
Wählen Sie einen anderen.</translation>
    </message>
    <message>
        <location filename="../src/albums/transfer/Transfer.cpp"/>
        <source>1 or more Slide Shows within the selected Destination Album have
names identical to those of Slide Shows in the Source
Album.  You can only %1 unique Slide Shows.
Use the Update Feature to overwrite an existing album.</source>
        <translation>Mindestens eine Diashow im Zielalbum heißt ebenso wie eine im Quellalbum.
%1 lassen sich nur Diashows, deren Namen am Ziel noch frei sind.
Um ein vorhandenes Album zu überschreiben, lassen Sie dessen Inhalt ersetzen.</translation>
    </message>
    <message>
        <location filename="../src/albums/transfer/Transfer.cpp"/>
        <source>1 or more source slides could not be found.</source>
        <translation>Mindestens ein Dia der Quelle wurde nicht gefunden.</translation>
    </message>
    <message>
        <location filename="../src/albums/transfer/Transfer.cpp"/>
        <source>Album Name is already in use.</source>
        <translation>Der Name des Albums ist schon vergeben.</translation>
    </message>
    <message>
        <location filename="../src/albums/transfer/Transfer.cpp"/>
        <source>Failed to create the album.</source>
        <translation>Das Album konnte nicht angelegt werden.</translation>
    </message>
    <message>
        <location filename="../src/albums/transfer/Transfer.cpp"/>
        <source>Failed to load destination slide show.</source>
        <translation>Die Diashow am Ziel konnte nicht geladen werden.</translation>
    </message>
    <message>
        <location filename="../src/albums/transfer/Transfer.cpp"/>
        <source>Failed to load the destination album.</source>
        <translation>Das Zielalbum konnte nicht geladen werden.</translation>
    </message>
    <message>
        <location filename="../src/albums/transfer/Transfer.cpp"/>
        <source>Failed to load the source Album.</source>
        <translation>Das Quellalbum konnte nicht geladen werden.</translation>
    </message>
    <message>
        <location filename="../src/albums/transfer/Transfer.cpp"/>
        <source>Failed to load the source Slide Show.</source>
        <translation>Die Diashow der Quelle konnte nicht geladen werden.</translation>
    </message>
    <message>
        <location filename="../src/albums/transfer/Transfer.cpp"/>
        <source>Invalid Album Name</source>
        <translation>Ungültiger Albumname</translation>
    </message>
    <message>
        <location filename="../src/albums/transfer/Transfer.cpp"/>
        <source>You cannot Export a Slide Show to itself!</source>
        <translation>Eine Diashow lässt sich nicht in sich selbst exportieren!</translation>
    </message>
    <message>
        <location filename="../src/albums/transfer/Transfer.cpp"/>
        <source>You cannot Export an Album to itself!</source>
        <translation>Ein Album lässt sich nicht in sich selbst exportieren!</translation>
    </message>
    <message>
        <location filename="../src/albums/transfer/TransferProgress.cpp"/>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <location filename="../src/albums/transfer/TransferProgress.cpp"/>
        <source>Looking at what is to be copied</source>
        <translation>Es wird nachgesehen, was zu kopieren ist</translation>
    </message>
    <message>
        <location filename="../src/albums/transfer/TransferProgress.cpp"/>
        <source>Writing the records</source>
        <translation>Die Datensätze werden geschrieben</translation>
    </message>
    <message>
        <location filename="../src/albums/transfer/TransferProgress.cpp"/>
        <source>about %1 hours</source>
        <translation>etwa %1 Stunden</translation>
    </message>
    <message>
        <location filename="../src/albums/transfer/TransferProgress.cpp"/>
        <source>about %1 minutes</source>
        <translation>etwa %1 Minuten</translation>
    </message>
    <message>
        <location filename="../src/albums/transfer/TransferProgress.cpp"/>
        <source>about %1 seconds</source>
        <translation>etwa %1 Sekunden</translation>
    </message>
    <message>
        <location filename="../src/albums/transfer/TransferProgress.cpp"/>
        <source>about a minute</source>
        <translation>etwa eine Minute</translation>
    </message>
    <message>
        <location filename="../src/albums/transfer/TransferProgress.cpp"/>
        <source>picture %1 of %2</source>
        <translation>Bild %1 von %2</translation>
    </message>
    <message>
        <location filename="../src/albums/transfer/TransferRun.cpp"/>
        <source>The destination was changed meanwhile. Nothing was transferred.</source>
        <translation>Das Ziel wurde inzwischen geändert. Nichts wurde übertragen.</translation>
    </message>
    <message>
        <location filename="../src/albums/transfer/TransferRun.cpp"/>
        <source>The transfer is done, but not all of its files are in their places yet; the next opening of the database will put them there. %1</source>
        <translation>Die Übertragung ist fertig, aber noch nicht alle Dateien sind an ihrem Platz; das nächste Öffnen der Datenbank bringt sie dorthin. %1</translation>
    </message>
    <message>
        <location filename="../src/controls/directories/DirectoryTree.cpp"/>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <location filename="../src/controls/directories/DirectoryTree.cpp"/>
        <source>Directories</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <location filename="../src/controls/directories/DirectoryTree.cpp"/>
        <source>Directory</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <location filename="../src/controls/directories/DirectoryTree.cpp"/>
        <source>Right and Left open and close a directory</source>
        <translation>Rechts und Links öffnen und schließen einen Ordner</translation>
    </message>
    <message>
        <location filename="../src/controls/directories/DirectoryTree.cpp"/>
        <source>The directory; type a path and press Enter to go there</source>
        <translation>Der Ordner; geben Sie einen Pfad ein, und drücken Sie die Eingabetaste</translation>
    </message>
    <message>
        <location filename="../src/controls/fields/CaptionCount.cpp"/>
        <source>%1 characters</source>
        <translation>%1 Zeichen</translation>
    </message>
    <message>
        <location filename="../src/controls/fields/CaptionCount.cpp"/>
        <source>%1 characters, %2 in earlier versions</source>
        <translation>%1 Zeichen, %2 in früheren Versionen</translation>
    </message>
    <message>
        <location filename="../src/controls/fields/CaptionCount.cpp"/>
        <source>%1 characters, kept whole. Earlier versions of this program show only the first %2.</source>
        <translation>%1 Zeichen, alle bleiben erhalten. Frühere Versionen dieses Programms zeigen nur die ersten %2.</translation>
    </message>
    <message>
        <location filename="../src/controls/fields/CaptionCount.cpp"/>
        <source>%1 characters. Longer captions are kept whole, but earlier versions of this program show only their first %2 letters.</source>
        <translation>%1 Zeichen. Längere Bildtexte bleiben ganz erhalten, aber frühere Versionen dieses Programms zeigen nur die ersten %2 Buchstaben.</translation>
    </message>
    <message>
        <location filename="../src/controls/fields/NameCount.cpp"/>
        <source>%1 characters, which take the room of %2 letters. A name has room for %3.</source>
        <translation>%1 Zeichen, die den Platz von %2 Buchstaben brauchen. Ein Name hat Platz für %3.</translation>
    </message>
    <message>
        <location filename="../src/controls/fields/NameCount.cpp"/>
        <source>%1 characters. A name has room for %2.</source>
        <translation>%1 Zeichen. Ein Name hat Platz für %2.</translation>
    </message>
    <message>
        <location filename="../src/controls/fields/NameCount.cpp"/>
        <source>A name has room for %1 characters. The last %2 were left out.</source>
        <translation>Ein Name hat Platz für %1 Zeichen. Die letzten %2 wurden weggelassen.</translation>
    </message>
    <message>
        <location filename="../src/controls/fields/NameCount.cpp"/>
        <source>A name has room for %1 characters. The last one was left out.</source>
        <translation>Ein Name hat Platz für %1 Zeichen. Das letzte wurde weggelassen.</translation>
    </message>
    <message>
        <location filename="../src/controls/fields/NameCount.cpp"/>
        <source>The name is full: it has room for %1 characters.</source>
        <translation>Der Name ist voll: Er hat Platz für %1 Zeichen.</translation>
    </message>
    <message>
        <location filename="../src/controls/fields/ProgressWords.cpp"/>
        <source>Picture %1 of %2</source>
        <translation>Bild %1 von %2</translation>
    </message>
    <message>
        <location filename="../src/controls/fields/ToolBar.cpp"/>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <location filename="../src/controls/forms/DesktopBoxes.cpp"/>
        <source>&amp;Discard</source>
        <translation>&amp;Verwerfen</translation>
    </message>
    <message>
        <location filename="../src/controls/forms/NebApplication.cpp"/>
        <source>Operation Failed</source>
        <translation>Der Vorgang ist fehlgeschlagen</translation>
    </message>
    <message>
        <location filename="../src/controls/forms/frmLoadSlide.cpp"/>
        <source>Loading Slide</source>
        <translation>Dia wird geladen</translation>
    </message>
    <message>
        <location filename="../src/controls/forms/frmLoading.cpp"/>
        <source>Abort Confirmation</source>
        <translation>Wirklich abbrechen?</translation>
    </message>
    <message>
        <location filename="../src/controls/forms/frmLoading.cpp"/>
        <source>Are you sure you want to Abort the current process?</source>
        <translation>Möchten Sie den laufenden Vorgang wirklich abbrechen?</translation>
    </message>
    <message>
        <location filename="../src/controls/forms/frmLoading.cpp"/>
        <source>Stop and keep what has been read so far (Esc)</source>
        <translation>Anhalten und behalten, was schon gelesen ist (Esc)</translation>
    </message>
    <message>
        <location filename="../src/controls/forms/frmLoading.ui"/>
        <source>Loading Slides ...</source>
        <translation>Dias werden geladen ...</translation>
    </message>
    <message>
        <location filename="../src/controls/forms/frmLoading.ui"/>
        <source>Picture being read</source>
        <translation>Bild, das gelesen wird</translation>
    </message>
    <message>
        <location filename="../src/controls/forms/frmLoading.ui"/>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <location filename="../src/controls/forms/frmLoading.ui"/>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <location filename="../src/controls/forms/frmLoading.ui"/>
        <source>This cannot be stopped</source>
        <translation>Das lässt sich nicht anhalten</translation>
    </message>
    <message>
        <location filename="../src/controls/forms/frmMsgBoxEx.ui"/>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <location filename="../src/controls/forms/frmMsgBoxEx.ui"/>
        <source>All of it can be read, and copied</source>
        <translation>Alles lässt sich lesen und kopieren</translation>
    </message>
    <message>
        <location filename="../src/controls/forms/frmMsgBoxEx.ui"/>
        <source>Close this message</source>
        <translation>Diese Mitteilung schließen</translation>
    </message>
    <message>
        <location filename="../src/controls/forms/frmMsgBoxEx.ui"/>
        <source>Message</source>
        <translation>Mitteilung</translation>
    </message>
    <message>
        <location filename="../src/controls/forms/frmMsgBoxEx.ui"/>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <location filename="../src/controls/forms/frmProgress.ui"/>
        <source>Stop and keep what is done so far (Esc)</source>
        <translation>Anhalten und behalten, was schon getan ist (Esc)</translation>
    </message>
    <message>
        <location filename="../src/controls/forms/frmProgress.ui"/>
        <source>Working ...</source>
        <translation>In Arbeit ...</translation>
    </message>
    <message>
        <location filename="../src/controls/grid/FlexGridModel.cpp"/>
        <source>Caption</source>
        <translation>Bildtext</translation>
    </message>
    <message>
        <location filename="../src/controls/grid/FlexGridModel.cpp"/>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <location filename="../src/controls/grid/FlexGridStore.cpp"/>
        <source>A row or column outside the list was asked for.</source>
        <translation>Es wurde nach einer Zeile oder Spalte gefragt, die es in der Liste nicht gibt.</translation>
    </message>
    <message>
        <location filename="../src/controls/picture/XShow.cpp"/>
        <source>Slide picture</source>
        <translation>Bild des Dias</translation>
    </message>
    <message>
        <location filename="../src/controls/picture/XShowLoader.cpp"/>
        <source>The picture cannot be read.</source>
        <translation>Das Bild ist nicht lesbar.</translation>
    </message>
    <message>
        <location filename="../src/controls/picture/XShowLoader.cpp"/>
        <source>There is nothing that reads pictures.</source>
        <translation>Es ist nichts da, was Bilder liest.</translation>
    </message>
    <message>
        <location filename="../src/db/AlbumSums.cpp"/>
        <source>There is a file of this name already.</source>
        <translation>Es gibt schon eine Datei mit diesem Namen.</translation>
    </message>
    <message>
        <location filename="../src/db/Changes.cpp"/>
        <source>Slide could not be found.</source>
        <translation>Das Dia wurde nicht gefunden.</translation>
    </message>
    <message>
        <location filename="../src/db/Changes.cpp"/>
        <source>There is a slide of the number %1.</source>
        <translation>Es gibt schon ein Dia mit der Nummer %1.</translation>
    </message>
    <message>
        <location filename="../src/db/clsDBEngine.cpp"/>
        <source>&lt;NEW ALBUM&gt;</source>
        <translation>&lt;NEUES ALBUM&gt;</translation>
    </message>
    <message>
        <location filename="../src/db/clsDBEngine.cpp"/>
        <source>Album names must be &lt;= 80 characters long.</source>
        <translation>Namen von Alben dürfen höchstens 80 Zeichen lang sein.</translation>
    </message>
    <message>
        <location filename="../src/db/clsDBEngine.cpp"/>
        <source>An Album with this name already exists.</source>
        <translation>Ein Album mit diesem Namen gibt es schon.</translation>
    </message>
    <message>
        <location filename="../src/db/clsDBEngine.cpp"/>
        <source>The database is not there any more.</source>
        <translation>Die Datenbank ist nicht mehr da.</translation>
    </message>
    <message>
        <location filename="../src/db/clsDBEngine.cpp"/>
        <source>You must specify an Album name.</source>
        <translation>Bitte geben Sie dem Album einen Namen.</translation>
    </message>
    <message>
        <location filename="../src/db/clsDBEngineForward.cpp"/>
        <source>The Slide Show was not found.</source>
        <translation>Die Diashow wurde nicht gefunden.</translation>
    </message>
    <message>
        <location filename="../src/db/clsNEBAlbum.cpp"/>
        <source>There is no row %1 in the list.</source>
        <translation>In der Liste gibt es keine Zeile %1.</translation>
    </message>
    <message>
        <location filename="../src/db/modClearRecords.cpp"/>
        <source>Clear Album Failed</source>
        <translation>Album nicht geleert</translation>
    </message>
    <message>
        <location filename="../src/db/modClearRecords.cpp"/>
        <source>Clear Slide Show Failed</source>
        <translation>Diashow nicht geleert</translation>
    </message>
    <message>
        <location filename="../src/db/modClearRecords.cpp"/>
        <source>Error clearing orphan slides in destination album.</source>
        <translation>Verwaiste Dias im Zielalbum konnten nicht entfernt werden.</translation>
    </message>
    <message>
        <location filename="../src/db/modClearRecords.cpp"/>
        <source>Failed to clear the album.</source>
        <translation>Das Album konnte nicht geleert werden.</translation>
    </message>
    <message>
        <location filename="../src/db/modClearRecords.cpp"/>
        <source>Failed to clear the slide show.</source>
        <translation>Die Diashow konnte nicht geleert werden.</translation>
    </message>
    <message>
        <location filename="../src/db/modTables.cpp"/>
        <source>The file of effect times ends too early.</source>
        <translation>Die Datei mit den Zeiten der Effekte endet zu früh.</translation>
    </message>
    <message>
        <location filename="../src/db/records/RecordSurvey.cpp"/>
        <source>The file cannot be read: %1.</source>
        <translation>Die Datei ist nicht lesbar: %1.</translation>
    </message>
    <message>
        <location filename="../src/db/records/RecordSurvey.cpp"/>
        <source>it is a folder</source>
        <translation>sie ist ein Ordner</translation>
    </message>
    <message>
        <location filename="../src/db/records/SessionJournal.cpp"/>
        <source>The records have been replaced by others.</source>
        <translation>Die Datensätze wurden durch andere ersetzt.</translation>
    </message>
    <message>
        <location filename="../src/db/records/modJournal.cpp"/>
        <source>The database directory is not there.</source>
        <translation>Der Ordner der Datenbank ist nicht da.</translation>
    </message>
    <message>
        <location filename="../src/db/recovery/DatabaseHealth.cpp"/>
        <source> Captions and names in other scripts, or longer than their records hold, are there as earlier albums in Backups have them, or else in the closest letters.</source>
        <translation> Bildtexte und Namen in anderen Schriften, oder solche, die länger sind als ihr Datensatz, sind so da, wie frühere Alben in Backups sie haben, sonst in den ähnlichsten Buchstaben.</translation>
    </message>
    <message>
        <location filename="../src/db/recovery/DatabaseHealth.cpp"/>
        <source> is damaged.</source>
        <translation> ist beschädigt.</translation>
    </message>
    <message>
        <location filename="../src/db/recovery/DatabaseHealth.cpp"/>
        <source> is missing.</source>
        <translation> fehlt.</translation>
    </message>
    <message>
        <location filename="../src/db/recovery/DatabaseHealth.cpp"/>
        <source> is no file: it is a folder.</source>
        <translation> ist keine Datei, sondern ein Ordner.</translation>
    </message>
    <message>
        <location filename="../src/db/recovery/DatabaseHealth.cpp"/>
        <source> is not as it was written: something has changed it.</source>
        <translation> ist nicht so, wie es geschrieben wurde: Etwas hat es verändert.</translation>
    </message>
    <message>
        <location filename="../src/db/recovery/DatabaseHealth.cpp"/>
        <source> was written by a later version of the program.</source>
        <translation> wurde von einer späteren Version des Programms geschrieben.</translation>
    </message>
    <message>
        <location filename="../src/db/recovery/DatabaseHealth.cpp"/>
        <source>%1 is damaged: its %2 bytes are no whole number of records.</source>
        <translation>%1 ist beschädigt: Die %2 Bytes sind keine ganze Zahl von Datensätzen.</translation>
    </message>
    <message>
        <location filename="../src/db/recovery/DatabaseHealth.cpp"/>
        <source>%1 is empty, and was not when it was written.</source>
        <translation>%1 ist leer und war es nicht, als es geschrieben wurde.</translation>
    </message>
    <message>
        <location filename="../src/db/recovery/DatabaseHealth.cpp"/>
        <source>%1 is empty.</source>
        <translation>%1 ist leer.</translation>
    </message>
    <message>
        <location filename="../src/db/recovery/DatabaseHealth.cpp"/>
        <source>%1 is missing.</source>
        <translation>%1 fehlt.</translation>
    </message>
    <message>
        <location filename="../src/db/recovery/DatabaseHealth.cpp"/>
        <source>%1 is no file: %2.</source>
        <translation>%1 ist keine Datei: %2.</translation>
    </message>
    <message>
        <location filename="../src/db/recovery/DatabaseHealth.cpp"/>
        <source>%1 is not as it was written: something has changed it.</source>
        <translation>%1 ist nicht so, wie es geschrieben wurde: Etwas hat es verändert.</translation>
    </message>
    <message>
        <location filename="../src/db/recovery/DatabaseHealth.cpp"/>
        <source>%1 place or sound track belongs to a slide show that is not there.</source>
        <translation>%1 Platz oder Tonspur gehört zu einer Diashow, die es nicht gibt.</translation>
    </message>
    <message>
        <location filename="../src/db/recovery/DatabaseHealth.cpp"/>
        <source>%1 places or sound tracks belong to a slide show that is not there.</source>
        <translation>%1 Plätze oder Tonspuren gehören zu einer Diashow, die es nicht gibt.</translation>
    </message>
    <message>
        <location filename="../src/db/recovery/DatabaseHealth.cpp"/>
        <source>%1 record has a number that the program never gives.</source>
        <translation>%1 Datensatz hat eine Nummer, die das Programm nie vergibt.</translation>
    </message>
    <message>
        <location filename="../src/db/recovery/DatabaseHealth.cpp"/>
        <source>%1 records have a number that the program never gives.</source>
        <translation>%1 Datensätze haben eine Nummer, die das Programm nie vergibt.</translation>
    </message>
    <message>
        <location filename="../src/db/recovery/DatabaseHealth.cpp"/>
        <source>%1 slide belongs to an album that is not in Albums.dat.</source>
        <translation>%1 Dia gehört zu einem Album, das nicht in Albums.dat steht.</translation>
    </message>
    <message>
        <location filename="../src/db/recovery/DatabaseHealth.cpp"/>
        <source>%1 slide show belongs to an album that is not in Albums.dat.</source>
        <translation>%1 Diashow gehört zu einem Album, das nicht in Albums.dat steht.</translation>
    </message>
    <message>
        <location filename="../src/db/recovery/DatabaseHealth.cpp"/>
        <source>%1 slide shows belong to an album that is not in Albums.dat.</source>
        <translation>%1 Diashows gehören zu einem Album, das nicht in Albums.dat steht.</translation>
    </message>
    <message>
        <location filename="../src/db/recovery/DatabaseHealth.cpp"/>
        <source>%1 slides belong to an album that is not in Albums.dat.</source>
        <translation>%1 Dias gehören zu einem Album, das nicht in Albums.dat steht.</translation>
    </message>
    <message>
        <location filename="../src/db/recovery/DatabaseHealth.cpp"/>
        <source>: The file cannot be read: %1.</source>
        <translation>: Die Datei ist nicht lesbar: %1.</translation>
    </message>
    <message>
        <location filename="../src/db/recovery/DatabaseHealth.cpp"/>
        <source>Albums.dat has no albums, although there are folders of albums in Albums.</source>
        <translation>Albums.dat enthält keine Alben, obwohl in Albums Ordner von Alben liegen.</translation>
    </message>
    <message>
        <location filename="../src/db/recovery/DatabaseHealth.cpp"/>
        <source>All files of records are missing, although pictures or sounds lie in Albums.</source>
        <translation>Alle Dateien mit Datensätzen fehlen, obwohl in Albums Bilder oder Töne liegen.</translation>
    </message>
    <message>
        <location filename="../src/db/recovery/DatabaseHealth.cpp"/>
        <source>All files of records are missing, although there are earlier albums in Backups.</source>
        <translation>Alle Dateien mit Datensätzen fehlen, obwohl in Backups frühere Alben liegen.</translation>
    </message>
    <message>
        <location filename="../src/db/recovery/DatabaseHealth.cpp"/>
        <source>NextIDs.dat has no sensible number for the next %1.</source>
        <translation>NextIDs.dat hat keine brauchbare nächste Nummer (%1).</translation>
    </message>
    <message>
        <location filename="../src/db/recovery/DatabaseHealth.cpp"/>
        <source>NextIDs.dat says that the next %1 has the number %2, but number %3 is taken: new pictures or sounds would replace old ones.</source>
        <translation>Nach NextIDs.dat ist die nächste Nummer (%1) die %2, aber %3 ist schon vergeben: Neue Bilder oder Töne würden alte ersetzen.</translation>
    </message>
    <message>
        <location filename="../src/db/recovery/DatabaseHealth.cpp"/>
        <source>SlideShowDetails.dat is empty, although there are slide shows.</source>
        <translation>SlideShowDetails.dat ist leer, obwohl es Diashows gibt.</translation>
    </message>
    <message>
        <location filename="../src/db/recovery/DatabaseHealth.cpp"/>
        <source>SlideShowSoundTracks.dat is empty, although there are sound tracks in Albums.</source>
        <translation>SlideShowSoundTracks.dat ist leer, obwohl in Albums Tonspuren liegen.</translation>
    </message>
    <message>
        <location filename="../src/db/recovery/DatabaseHealth.cpp"/>
        <source>Slides.dat has no slides, although there are pictures in Albums.</source>
        <translation>Slides.dat enthält keine Dias, obwohl in Albums Bilder liegen.</translation>
    </message>
    <message>
        <location filename="../src/db/recovery/DatabaseHealth.cpp"/>
        <source>The folder %1 cannot be read: %2.</source>
        <translation>Der Ordner %1 ist nicht lesbar: %2.</translation>
    </message>
    <message>
        <location filename="../src/db/recovery/DatabaseHealth.cpp"/>
        <source>album</source>
        <translation>Album</translation>
    </message>
    <message>
        <location filename="../src/db/recovery/DatabaseHealth.cpp"/>
        <source>slide</source>
        <translation>Dia</translation>
    </message>
    <message>
        <location filename="../src/db/recovery/DatabaseHealth.cpp"/>
        <source>slide show</source>
        <translation>Diashow</translation>
    </message>
    <message>
        <location filename="../src/db/recovery/StateDifferences.cpp"/>
        <source>&quot;%1&quot; instead of &quot;%2&quot;</source>
        <translation>„%1“ statt „%2“</translation>
    </message>
    <message>
        <location filename="../src/db/recovery/StateDifferences.cpp"/>
        <source>&quot;%1&quot; of &quot;%2&quot;</source>
        <translation>„%1“ in „%2“</translation>
    </message>
    <message>
        <location filename="../src/db/recovery/StateDifferences.cpp"/>
        <source>%1 captions change back.</source>
        <translation>%1 Bildtexte werden wieder wie früher.</translation>
    </message>
    <message>
        <location filename="../src/db/recovery/StateDifferences.cpp"/>
        <source>%1 slide shows change back.</source>
        <translation>%1 Diashows werden wieder wie früher.</translation>
    </message>
    <message>
        <location filename="../src/db/recovery/StateDifferences.cpp"/>
        <source>%1 slides come back.</source>
        <translation>%1 Dias kommen zurück.</translation>
    </message>
    <message>
        <location filename="../src/db/recovery/StateDifferences.cpp"/>
        <source>%1 slides get their earlier pictures or sounds.</source>
        <translation>%1 Dias bekommen ihr früheres Bild oder ihren früheren Ton.</translation>
    </message>
    <message>
        <location filename="../src/db/recovery/StateDifferences.cpp"/>
        <source>%1 slides go.</source>
        <translation>%1 Dias verschwinden.</translation>
    </message>
    <message>
        <location filename="../src/db/recovery/StateDifferences.cpp"/>
        <source>1 caption changes back.</source>
        <translation>1 Bildtext wird wieder wie früher.</translation>
    </message>
    <message>
        <location filename="../src/db/recovery/StateDifferences.cpp"/>
        <source>1 slide comes back.</source>
        <translation>1 Dia kommt zurück.</translation>
    </message>
    <message>
        <location filename="../src/db/recovery/StateDifferences.cpp"/>
        <source>1 slide gets its earlier picture or sound.</source>
        <translation>1 Dia bekommt sein früheres Bild oder seinen früheren Ton.</translation>
    </message>
    <message>
        <location filename="../src/db/recovery/StateDifferences.cpp"/>
        <source>1 slide goes.</source>
        <translation>1 Dia verschwindet.</translation>
    </message>
    <message>
        <location filename="../src/db/recovery/StateDifferences.cpp"/>
        <source>1 slide show changes back.</source>
        <translation>1 Diashow wird wieder wie früher.</translation>
    </message>
    <message>
        <location filename="../src/db/recovery/StateDifferences.cpp"/>
        <source>Albums that come back: </source>
        <translation>Alben, die zurückkommen: </translation>
    </message>
    <message>
        <location filename="../src/db/recovery/StateDifferences.cpp"/>
        <source>Albums that get their earlier names: </source>
        <translation>Alben, die wieder heißen wie früher: </translation>
    </message>
    <message>
        <location filename="../src/db/recovery/StateDifferences.cpp"/>
        <source>Albums that go: </source>
        <translation>Alben, die verschwinden: </translation>
    </message>
    <message>
        <location filename="../src/db/recovery/StateDifferences.cpp"/>
        <source>No album, slide or slide show differs.</source>
        <translation>Kein Album, kein Dia und keine Diashow ist anders.</translation>
    </message>
    <message>
        <location filename="../src/db/recovery/StateDifferences.cpp"/>
        <source>Slide shows that come back: </source>
        <translation>Diashows, die zurückkommen: </translation>
    </message>
    <message>
        <location filename="../src/db/recovery/StateDifferences.cpp"/>
        <source>Slide shows that go: </source>
        <translation>Diashows, die verschwinden: </translation>
    </message>
    <message>
        <location filename="../src/db/recovery/modRestore.cpp"/>
        <source>The earlier albums are damaged.</source>
        <translation>Die früheren Alben sind beschädigt.</translation>
    </message>
    <message>
        <location filename="../src/db/recovery/modRestore.cpp"/>
        <source>The files of an interrupted transfer cannot be put in their places.</source>
        <translation>Die Dateien einer unterbrochenen Übertragung lassen sich nicht an ihren Platz bringen.</translation>
    </message>
    <message>
        <location filename="../src/db/undo/History.cpp"/>
        <source>&quot;%1&quot; cannot be taken back.
%2</source>
        <translation>„%1“ kann nicht zurückgenommen werden.
%2</translation>
    </message>
    <message>
        <location filename="../src/db/undo/History.cpp"/>
        <source>There is no room to keep the file that is there now.</source>
        <translation>Es ist kein Platz, um die jetzige Datei aufzuheben.</translation>
    </message>
    <message>
        <location filename="../src/db/undo/History.cpp"/>
        <source>There is nothing to take back.</source>
        <translation>Es gibt nichts zurückzunehmen.</translation>
    </message>
    <message>
        <location filename="../src/db/undo/History.cpp"/>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <location filename="../src/db/undo/UndoStep.cpp"/>
        <source>%1 &quot;%2&quot;</source>
        <translation>%1: „%2“</translation>
    </message>
    <message>
        <location filename="../src/db/undo/UndoStep.cpp"/>
        <source>Change %1 Captions</source>
        <translation>%1 Bildtexte ändern</translation>
    </message>
    <message>
        <location filename="../src/db/undo/UndoStep.cpp"/>
        <source>Change %1 Slides</source>
        <translation>%1 Dias ändern</translation>
    </message>
    <message>
        <location filename="../src/db/undo/UndoStep.cpp"/>
        <source>Change Caption</source>
        <translation>Bildtext ändern</translation>
    </message>
    <message>
        <location filename="../src/db/undo/UndoStep.cpp"/>
        <source>Change Slide</source>
        <translation>Dia ändern</translation>
    </message>
    <message>
        <location filename="../src/db/undo/UndoStep.cpp"/>
        <source>Change Slide Show</source>
        <translation>Diashow ändern</translation>
    </message>
    <message>
        <location filename="../src/db/undo/UndoStep.cpp"/>
        <source>Delete %1 Slides</source>
        <translation>%1 Dias löschen</translation>
    </message>
    <message>
        <location filename="../src/db/undo/UndoStep.cpp"/>
        <source>Delete Album</source>
        <translation>Album löschen</translation>
    </message>
    <message>
        <location filename="../src/db/undo/UndoStep.cpp"/>
        <source>Delete Slide</source>
        <translation>Dia löschen</translation>
    </message>
    <message>
        <location filename="../src/db/undo/UndoStep.cpp"/>
        <source>Delete Slide Show</source>
        <translation>Diashow löschen</translation>
    </message>
    <message>
        <location filename="../src/db/undo/UndoStep.cpp"/>
        <source>Its album is not there any more.</source>
        <translation>Das Album dazu ist nicht mehr da.</translation>
    </message>
    <message>
        <location filename="../src/db/undo/UndoStep.cpp"/>
        <source>Rename Album</source>
        <translation>Album umbenennen</translation>
    </message>
    <message>
        <location filename="../src/db/undo/UndoStep.cpp"/>
        <source>The album has been changed since.</source>
        <translation>Das Album wurde seither geändert.</translation>
    </message>
    <message>
        <location filename="../src/db/undo/UndoStep.cpp"/>
        <source>The album has been renamed since.</source>
        <translation>Das Album wurde seither umbenannt.</translation>
    </message>
    <message>
        <location filename="../src/db/undo/UndoStep.cpp"/>
        <source>The slide has been changed since.</source>
        <translation>Das Dia wurde seither geändert.</translation>
    </message>
    <message>
        <location filename="../src/db/undo/UndoStep.cpp"/>
        <source>The slide show has been changed since.</source>
        <translation>Die Diashow wurde seither geändert.</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Basket Weave</source>
        <translation>Korbgeflecht</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Billboard Turn</source>
        <translation>Drehende Anzeigetafel</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Blinds Diagonal</source>
        <translation>Jalousie diagonal</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Blinds Horizontal</source>
        <translation>Jalousie waagerecht</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Blinds Vertical</source>
        <translation>Jalousie senkrecht</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Blinds in Turn</source>
        <translation>Jalousie nacheinander</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Block Dissolve</source>
        <translation>Auflösen in Blöcken</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Blur Dissolve</source>
        <translation>Auflösen in Unschärfe</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Book Leaf</source>
        <translation>Buchseite</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Bright to Dark Dissolve</source>
        <translation>Auflösen von Hell nach Dunkel</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Brush Strokes</source>
        <translation>Pinselstriche</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Burn Away</source>
        <translation>Abbrennen</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Card Flip</source>
        <translation>Karte wenden</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Card Flip Up</source>
        <translation>Karte nach oben wenden</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Carousel Left</source>
        <translation>Karussell nach links</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Carousel Right</source>
        <translation>Karussell nach rechts</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Checkerboard</source>
        <translation>Schachbrett</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Clock Wipe</source>
        <translation>Uhrzeiger</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Clock Wipe Counterclockwise</source>
        <translation>Uhrzeiger gegen den Uhrzeigersinn</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Clock Wipe Two Hands</source>
        <translation>Uhr mit zwei Zeigern</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Cloud Dissolve</source>
        <translation>Auflösen in Wolken</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Comb Horizontal</source>
        <translation>Kamm waagerecht</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Comb Vertical</source>
        <translation>Kamm senkrecht</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Cover Down</source>
        <translation>Überdecken nach unten</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Cover Left</source>
        <translation>Überdecken nach links</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Cover Up</source>
        <translation>Überdecken nach oben</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Cross Fade</source>
        <translation>Überblenden</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Cube Turn Down</source>
        <translation>Würfel nach unten</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Cube Turn Left</source>
        <translation>Würfel nach links</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Cube Turn Right</source>
        <translation>Würfel nach rechts</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Cube Turn Up</source>
        <translation>Würfel nach oben</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Curtain</source>
        <translation>Vorhang</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Dark to Bright Dissolve</source>
        <translation>Auflösen von Dunkel nach Hell</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Doors Close</source>
        <translation>Türen schließen</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Doors Open</source>
        <translation>Türen öffnen</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Dot Dissolve</source>
        <translation>Auflösen in Punkten</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Fade Through Black</source>
        <translation>Überblenden durch Schwarz</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Fade Through Old Photograph</source>
        <translation>Überblenden durch altes Foto</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Fade Through White</source>
        <translation>Überblenden durch Weiß</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Fall Back</source>
        <translation>Nach hinten fallen</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Falling Columns</source>
        <translation>Fallende Säulen</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Fan Wipe</source>
        <translation>Fächer</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Film Burn</source>
        <translation>Durchbrennender Film</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Grow From the Middle</source>
        <translation>Aus der Mitte wachsen</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Growing Dots</source>
        <translation>Wachsende Punkte</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Honeycomb</source>
        <translation>Bienenwabe</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Iris Box In</source>
        <translation>Blende Rechteck nach innen</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Iris Box Out</source>
        <translation>Blende Rechteck nach außen</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Iris Circle In</source>
        <translation>Blende Kreis nach innen</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Iris Circle Out</source>
        <translation>Blende Kreis nach außen</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Iris Cross</source>
        <translation>Blende Kreuz</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Iris Diamond In</source>
        <translation>Blende Raute nach innen</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Iris Diamond Out</source>
        <translation>Blende Raute nach außen</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Iris Heart</source>
        <translation>Blende Herz</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Iris Star</source>
        <translation>Blende Stern</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Iris Star In</source>
        <translation>Blende Stern nach innen</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Iris of Light</source>
        <translation>Blende aus Licht</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Lens Passing</source>
        <translation>Vorbeiziehende Linse</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Light Bloom</source>
        <translation>Aufblühendes Licht</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Map Fold</source>
        <translation>Landkarte falten</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Mosaic</source>
        <translation>Mosaik</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Mosaic Ring</source>
        <translation>Mosaikring</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Page Turn Corner</source>
        <translation>Umblättern an der Ecke</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Page Turn Left</source>
        <translation>Umblättern nach links</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Page Turn Right</source>
        <translation>Umblättern nach rechts</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Page Turn Up</source>
        <translation>Umblättern nach oben</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Paper Soak</source>
        <translation>Durchnässtes Papier</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Peel From the Middle</source>
        <translation>Aus der Mitte abziehen</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Plain Change</source>
        <translation>Einfacher Wechsel</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Push Down</source>
        <translation>Schieben nach unten</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Push Left</source>
        <translation>Schieben nach links</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Push Right</source>
        <translation>Schieben nach rechts</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Push Up</source>
        <translation>Schieben nach oben</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Puzzle</source>
        <translation>Puzzle</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Quarters Part</source>
        <translation>Viertel weichen</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Rain Drops</source>
        <translation>Regentropfen</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Rain on the Pond</source>
        <translation>Regen auf dem Teich</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Random Bars Horizontal</source>
        <translation>Zufällige Balken waagerecht</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Random Bars Vertical</source>
        <translation>Zufällige Balken senkrecht</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Rings</source>
        <translation>Ringe</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Roll Up</source>
        <translation>Aufrollen</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Saw Tooth Wipe</source>
        <translation>Sägezähne</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Shrink to the Corner</source>
        <translation>In die Ecke schrumpfen</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Simple Fade</source>
        <translation>Einfaches Überblenden</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Slats Turn</source>
        <translation>Drehende Lamellen</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Snake</source>
        <translation>Schlange</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Spin Away</source>
        <translation>Fortwirbeln</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Spin In</source>
        <translation>Hereinwirbeln</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Spiral In</source>
        <translation>Spirale nach innen</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Spiral Out</source>
        <translation>Spirale nach außen</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Split Horizontal In</source>
        <translation>Teilen waagerecht nach innen</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Split Horizontal Out</source>
        <translation>Teilen waagerecht nach außen</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Split Vertical In</source>
        <translation>Teilen senkrecht nach innen</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Split Vertical Out</source>
        <translation>Teilen senkrecht nach außen</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Squeeze Up</source>
        <translation>Nach oben stauchen</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Stretch Right</source>
        <translation>Nach rechts dehnen</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Strips From Both Sides</source>
        <translation>Streifen von beiden Seiten</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Sunrise</source>
        <translation>Sonnenaufgang</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Sweep Corner</source>
        <translation>Über die Ecke streichen</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Swing Doors</source>
        <translation>Pendeltüren</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Swing From the Corner</source>
        <translation>Von der Ecke schwingen</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Swirl Wipe</source>
        <translation>Strudel</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Swirl Zoom</source>
        <translation>Strudel mit Zoom</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Tiles Fall</source>
        <translation>Kacheln fallen</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Tiles Fly Apart</source>
        <translation>Kacheln fliegen auseinander</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Tiles Fly In</source>
        <translation>Kacheln fliegen herein</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Tiles Shrink Away</source>
        <translation>Kacheln schrumpfen</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Tiles Turn</source>
        <translation>Kacheln wenden</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Tiles Turn at Random</source>
        <translation>Kacheln wenden zufällig</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Twirl</source>
        <translation>Wirbel</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Uncover Corner</source>
        <translation>Aufdecken an der Ecke</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Uncover Left</source>
        <translation>Aufdecken nach links</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Uncover Right</source>
        <translation>Aufdecken nach rechts</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Unfold From the Middle</source>
        <translation>Aus der Mitte entfalten</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Unroll Down</source>
        <translation>Nach unten ausrollen</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Wall of Light</source>
        <translation>Wand aus Licht</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Water Ring</source>
        <translation>Wasserring</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Wave Across</source>
        <translation>Durchlaufende Welle</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Wave Wipe Down</source>
        <translation>Welle nach unten</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Wave Wipe Right</source>
        <translation>Welle nach rechts</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Wipe Corner Top Left</source>
        <translation>Wischen von links oben</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Wipe Down</source>
        <translation>Wischen nach unten</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Wipe Left</source>
        <translation>Wischen nach links</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Wipe Right</source>
        <translation>Wischen nach rechts</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Wipe Up</source>
        <translation>Wischen nach oben</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Zoom In</source>
        <translation>Heranzoomen</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Zoom Out</source>
        <translation>Wegzoomen</translation>
    </message>
    <message>
        <location filename="../src/effects/EffectCatalogue.cpp"/>
        <source>Zoom Through</source>
        <translation>Hindurchzoomen</translation>
    </message>
    <message>
        <location filename="../src/pictures/JpegWriter.cpp"/>
        <source>The picture cannot be written as JPEG: it is empty or too large.</source>
        <translation>Das Bild lässt sich nicht als JPEG schreiben: Es ist leer oder zu groß.</translation>
    </message>
    <message>
        <location filename="../src/pictures/PictureFile.cpp"/>
        <source>The picture cannot be opened.</source>
        <translation>Das Bild lässt sich nicht öffnen.</translation>
    </message>
    <message>
        <location filename="../src/pictures/PictureFile.h"/>
        <source>There is not enough memory for the picture.</source>
        <translation>Für das Bild reicht der Speicher nicht.</translation>
    </message>
    <message>
        <location filename="../src/pictures/formats/PictureFaults.cpp"/>
        <source>The file is not a picture that this program can read.</source>
        <translation>Die Datei ist kein Bild, das dieses Programm lesen kann.</translation>
    </message>
    <message>
        <location filename="../src/pictures/formats/PictureFaults.cpp"/>
        <source>The file is too large to be read as a picture.</source>
        <translation>Die Datei ist zu groß, um als Bild gelesen zu werden.</translation>
    </message>
    <message>
        <location filename="../src/pictures/formats/PictureFaults.cpp"/>
        <source>The picture is damaged and cannot be read (%1).</source>
        <translation>Das Bild ist beschädigt und nicht lesbar (%1).</translation>
    </message>
    <message>
        <location filename="../src/pictures/formats/PictureFaults.cpp"/>
        <source>The picture is damaged and cannot be read.</source>
        <translation>Das Bild ist beschädigt und nicht lesbar.</translation>
    </message>
    <message>
        <location filename="../src/pictures/formats/PictureFaults.cpp"/>
        <source>The picture is damaged: it ends too early.</source>
        <translation>Das Bild ist beschädigt: Es endet zu früh.</translation>
    </message>
    <message>
        <location filename="../src/pictures/formats/PictureFaults.cpp"/>
        <source>The picture is too large to be read.</source>
        <translation>Das Bild ist zu groß, um gelesen zu werden.</translation>
    </message>
    <message>
        <location filename="../src/pictures/formats/PictureFaults.cpp"/>
        <source>The picture is too large to be read: %1 by %2 pixels.</source>
        <translation>Das Bild ist zu groß, um gelesen zu werden: %1 mal %2 Pixel.</translation>
    </message>
    <message>
        <location filename="../src/pictures/workers/ReadingLocked.cpp"/>
        <source>The picture cannot be read: it brings its reader down.</source>
        <translation>Das Bild ist nicht lesbar: Es bringt seinen Leser zum Absturz.</translation>
    </message>
    <message>
        <location filename="../src/pictures/workers/ReadingLocked.cpp"/>
        <source>The picture cannot be read: it takes too long.</source>
        <translation>Das Bild ist nicht lesbar: Es dauert zu lange.</translation>
    </message>
    <message>
        <location filename="../src/pictures/workers/ReadingLocked.cpp"/>
        <source>The picture cannot be read: it tried to do what no picture may.</source>
        <translation>Das Bild ist nicht lesbar: Es hat versucht, was kein Bild darf.</translation>
    </message>
    <message>
        <location filename="../src/pictures/workers/ReadingLocked.cpp"/>
        <source>The picture cannot be read: its reader talks nonsense.</source>
        <translation>Das Bild ist nicht lesbar: Sein Leser antwortet Unsinn.</translation>
    </message>
    <message>
        <location filename="../src/pictures/workers/ReadingLocked.cpp"/>
        <source>The picture could not be read: its reader was ended from outside, as happens when there is not enough memory.</source>
        <translation>Das Bild konnte nicht gelesen werden: Sein Leser wurde von außen beendet, wie es bei Speichermangel geschieht.</translation>
    </message>
    <message>
        <location filename="../src/pictures/workers/ReadingLocked.cpp"/>
        <source>The picture has brought its reader down three times and is not tried again before the program is started anew.</source>
        <translation>Das Bild hat seinen Leser dreimal zum Absturz gebracht und wird erst nach einem Neustart des Programms wieder versucht.</translation>
    </message>
    <message>
        <location filename="../src/printing/PageLayouts.cpp"/>
        <source>Picture must be %1 %2 %3.</source>
        <translation>Das Bild muss %1 %2 %3 sein.</translation>
    </message>
    <message>
        <location filename="../src/printing/PageLayouts.cpp"/>
        <source>There is room for at most %1 %2 on the page %3.</source>
        <translation>Auf der Seite ist %3 Platz für höchstens %1 %2.</translation>
    </message>
    <message>
        <location filename="../src/printing/PageLayouts.cpp"/>
        <source>You must have 1 or more copies per row.</source>
        <translation>In jeder Reihe muss mindestens ein Abzug stehen.</translation>
    </message>
    <message>
        <location filename="../src/printing/PageLayouts.cpp"/>
        <source>You must have 1 or more rows per page.</source>
        <translation>Auf jeder Seite muss mindestens eine Reihe stehen.</translation>
    </message>
    <message>
        <location filename="../src/printing/PageLayouts.cpp"/>
        <source>You must have 1 or more slides per row.</source>
        <translation>In jeder Reihe muss mindestens ein Dia stehen.</translation>
    </message>
    <message>
        <location filename="../src/printing/PageLayouts.cpp"/>
        <source>below each other</source>
        <translation>untereinander</translation>
    </message>
    <message>
        <location filename="../src/printing/PageLayouts.cpp"/>
        <source>columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <location filename="../src/printing/PageLayouts.cpp"/>
        <source>inch high</source>
        <translation>Zoll hoch</translation>
    </message>
    <message>
        <location filename="../src/printing/PageLayouts.cpp"/>
        <source>inch wide</source>
        <translation>Zoll breit</translation>
    </message>
    <message>
        <location filename="../src/printing/PageLayouts.cpp"/>
        <source>inches high</source>
        <translation>Zoll hoch</translation>
    </message>
    <message>
        <location filename="../src/printing/PageLayouts.cpp"/>
        <source>inches wide</source>
        <translation>Zoll breit</translation>
    </message>
    <message>
        <location filename="../src/printing/PageLayouts.cpp"/>
        <source>rows</source>
        <translation>Reihen</translation>
    </message>
    <message>
        <location filename="../src/printing/PageLayouts.cpp"/>
        <source>side by side</source>
        <translation>nebeneinander</translation>
    </message>
    <message>
        <location filename="../src/printing/PdfWriter.cpp"/>
        <source>The PDF file cannot be made. (%1)</source>
        <translation>Die PDF-Datei kann nicht angelegt werden. (%1)</translation>
    </message>
    <message>
        <location filename="../src/printing/PpdFile.cpp"/>
        <source>Neither a picture of the document nor the one that stands in for it can be read.</source>
        <translation>Weder ein Bild des Dokuments noch das, welches für es einspringt, ist lesbar.</translation>
    </message>
    <message>
        <location filename="../src/printing/PpdFile.cpp"/>
        <source>Picture %1 of the print document is damaged.</source>
        <translation>Bild %1 des Druckdokuments ist beschädigt.</translation>
    </message>
    <message>
        <location filename="../src/printing/PpdFile.cpp"/>
        <source>The file is no print document of this program.</source>
        <translation>Die Datei ist kein Druckdokument dieses Programms.</translation>
    </message>
    <message>
        <location filename="../src/printing/PpdFile.cpp"/>
        <source>The print document has been cut off meanwhile.</source>
        <translation>Das Druckdokument wurde inzwischen abgeschnitten.</translation>
    </message>
    <message>
        <location filename="../src/printing/PpdFile.cpp"/>
        <source>The print document was saved by a later version of this program.</source>
        <translation>Das Druckdokument wurde mit einer späteren Version dieses Programms gespeichert.</translation>
    </message>
    <message>
        <location filename="../src/printing/PpdTable.cpp"/>
        <source>The document has measures or a size that a print document file cannot hold.</source>
        <translation>Das Dokument hat Maße oder eine Größe, die eine Druckdokument-Datei nicht fassen kann.</translation>
    </message>
    <message>
        <location filename="../src/printing/PpdTable.cpp"/>
        <source>The print document is damaged or not whole.</source>
        <translation>Das Druckdokument ist beschädigt oder unvollständig.</translation>
    </message>
    <message>
        <location filename="../src/printing/PrintDocument.cpp"/>
        <source>&quot;%1&quot; is no measure in inches.</source>
        <translation>„%1“ ist kein Maß in Zoll.</translation>
    </message>
    <message>
        <location filename="../src/printing/PrintDocument.cpp"/>
        <source>A picture of %1 by %2 cannot be drawn.</source>
        <translation>Ein Bild von %1 mal %2 lässt sich nicht zeichnen.</translation>
    </message>
    <message>
        <location filename="../src/printing/PrintDocument.cpp"/>
        <source>The document is not being composed.</source>
        <translation>Das Dokument wird gerade nicht zusammengestellt.</translation>
    </message>
    <message>
        <location filename="../src/printing/PrintReach.cpp"/>
        <source>%1 pages, first on page %2</source>
        <translation>%1 Seiten, zuerst auf Seite %2</translation>
    </message>
    <message>
        <location filename="../src/printing/PrintReach.cpp"/>
        <source>The paper, %1 by %2 inches, is too small for what is on %3.</source>
        <translation>Das Papier, %1 mal %2 Zoll, ist zu klein für den Inhalt (%3).</translation>
    </message>
    <message>
        <location filename="../src/printing/PrintReach.cpp"/>
        <source>The printer cannot reach so near to the edge of the paper as pictures lie on %1: they will be cut off there.</source>
        <translation>Der Drucker kommt nicht so nah an den Rand des Papiers, wie Bilder liegen (%1): Dort werden sie abgeschnitten.</translation>
    </message>
    <message>
        <location filename="../src/printing/PrintReach.cpp"/>
        <source>page %1</source>
        <translation>Seite %1</translation>
    </message>
    <message>
        <location filename="../src/printing/SlidesToPrint.cpp"/>
        <source>%1 #%2 not found.</source>
        <translation>%1 Nr. %2 nicht gefunden.</translation>
    </message>
    <message>
        <location filename="../src/printing/SlidesToPrint.cpp"/>
        <source>Detail</source>
        <translation>Eintrag</translation>
    </message>
    <message>
        <location filename="../src/printing/SlidesToPrint.cpp"/>
        <source>Slide</source>
        <translation>Dia</translation>
    </message>
    <message>
        <location filename="../src/program/ActiveShow.cpp"/>
        <source>&amp;Choose One...</source>
        <translation>Aus&amp;wählen...</translation>
    </message>
    <message>
        <location filename="../src/program/ActiveShow.cpp"/>
        <source>&amp;Make One...</source>
        <translation>Anle&amp;gen...</translation>
    </message>
    <message>
        <location filename="../src/program/ActiveShow.cpp"/>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <location filename="../src/program/ActiveShow.cpp"/>
        <source>No Active Slide Show</source>
        <translation>Keine aktive Diashow</translation>
    </message>
    <message>
        <location filename="../src/program/ActiveShow.cpp"/>
        <source>Quick Show turns a folder of pictures into one.</source>
        <translation>Die Schnell-Diashow macht eine aus einem Ordner voller Bilder.</translation>
    </message>
    <message>
        <location filename="../src/program/ActiveShow.cpp"/>
        <source>The Slide Show Manager composes one from the slides of an album.</source>
        <translation>Die Diashow-Verwaltung stellt eine aus den Dias eines Albums zusammen.</translation>
    </message>
    <message>
        <location filename="../src/program/ActiveShow.cpp"/>
        <source>There is no slide show among these albums, and they cannot be changed.</source>
        <translation>In diesen Alben gibt es keine Diashow, und sie lassen sich nicht ändern.</translation>
    </message>
    <message>
        <location filename="../src/program/ActiveShow.cpp"/>
        <source>There is no slide show yet. %1</source>
        <translation>Es gibt noch keine Diashow. %1</translation>
    </message>
    <message>
        <location filename="../src/program/ActiveShow.cpp"/>
        <source>You must first select an Active Slide Show in Preferences!</source>
        <translation>Bitte wählen Sie zuerst in den Einstellungen eine aktive Diashow!</translation>
    </message>
    <message>
        <location filename="../src/program/EditMenu.cpp"/>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <location filename="../src/program/EditMenu.cpp"/>
        <source>&amp;Redo %1</source>
        <translation>&amp;Wiederholen: %1</translation>
    </message>
    <message>
        <location filename="../src/program/EditMenu.cpp"/>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <location filename="../src/program/EditMenu.cpp"/>
        <source>&amp;Undo %1</source>
        <translation>&amp;Rückgängig: %1</translation>
    </message>
    <message>
        <location filename="../src/program/EditMenu.cpp"/>
        <source>Done again: %1.</source>
        <translation>Wiederholt: %1.</translation>
    </message>
    <message>
        <location filename="../src/program/EditMenu.cpp"/>
        <source>Undone: %1.</source>
        <translation>Rückgängig gemacht: %1.</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>&amp;About NEB Slide Show</source>
        <translation>Ü&amp;ber NEB Slide Show</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>&amp;Album</source>
        <translation>&amp;Album</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>&amp;Bulk Slide Manager</source>
        <translation>&amp;Sammelbearbeitung</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>&amp;Cascade</source>
        <translation>Ü&amp;berlappend</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>&amp;Check All Pictures...</source>
        <translation>Alle Bilder &amp;prüfen...</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>&amp;Check a Disc...</source>
        <translation>&amp;Datenträger prüfen...</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>&amp;Contents</source>
        <translation>&amp;Inhalt</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>&amp;Delete Album...</source>
        <translation>Album &amp;löschen...</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>&amp;Home</source>
        <translation>&amp;Startseite</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>&amp;Import/Export</source>
        <translation>Import/E&amp;xport</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>&amp;Index</source>
        <translation>I&amp;ndex</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>&amp;New Album...</source>
        <translation>&amp;Neues Album...</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>&amp;Next</source>
        <translation>&amp;Weiter</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>&amp;Play Slide Show</source>
        <translation>Diashow &amp;abspielen</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>&amp;Previous</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>&amp;Print</source>
        <translation>Dr&amp;ucken</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>&amp;Quick Show...</source>
        <translation>Schnell-Dias&amp;how...</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>&amp;Rename Album...</source>
        <translation>Album &amp;umbenennen...</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>&amp;Slide Manager</source>
        <translation>&amp;Dia-Verwaltung</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>&amp;Tile</source>
        <translation>&amp;Nebeneinander</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>&amp;Window</source>
        <translation>&amp;Fenster</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>&amp;Write to a Folder for a Disc...</source>
        <translation>In einen &amp;Ordner für einen Datenträger schreiben...</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>Bring a slide show in from another database</source>
        <translation>Eine Diashow aus einer anderen Datenbank holen</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>Bring an album in from another database</source>
        <translation>Ein Album aus einer anderen Datenbank holen</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>C&amp;lose</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>Choose the active slide show and its effects</source>
        <translation>Die aktive Diashow und ihre Effekte wählen</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>Close the window in use</source>
        <translation>Das benutzte Fenster schließen</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>Compare a folder that was written for a disc with its check sums</source>
        <translation>Den Ordner eines Datenträgers mit seinen Prüfsummen vergleichen</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>Compose slide shows</source>
        <translation>Diashows zusammenstellen</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>Copy &amp;Report</source>
        <translation>Be&amp;richt kopieren</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>Copy what is to be known of this computer, for a letter about a problem</source>
        <translation>Kopieren, was für einen Brief über ein Problem zu wissen ist</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>Delete an album and all that it holds</source>
        <translation>Ein Album mit allem, was darin ist, löschen</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>Do again what was taken back last</source>
        <translation>Das zuletzt Zurückgenommene noch einmal tun</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>E&amp;xport Album...</source>
        <translation>Album &amp;exportieren...</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>Edit the captions of a whole album</source>
        <translation>Die Bildtexte eines ganzen Albums bearbeiten</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>Edit the slides of an album one by one</source>
        <translation>Die Dias eines Albums einzeln bearbeiten</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>Exp&amp;ort Slide Show...</source>
        <translation>Diashow e&amp;xportieren...</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>Find a subject by its name</source>
        <translation>Ein Thema nach seinem Namen finden</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>Go back to all albums and slide shows as they were saved before</source>
        <translation>Zurück zu allen Alben und Diashows, wie sie früher gespeichert wurden</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>Go to the albums and slide shows; once more: back to the windows</source>
        <translation>Zu den Alben und Diashows; noch einmal: zurück zu den Fenstern</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>Go to the next window</source>
        <translation>Zum nächsten Fenster</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>Go to the previous window</source>
        <translation>Zum vorigen Fenster</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>Help for This &amp;Window</source>
        <translation>Hilfe zu diesem &amp;Fenster</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>Import &amp;Album...</source>
        <translation>&amp;Album importieren...</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>Import &amp;Slide Show...</source>
        <translation>Dia&amp;show importieren...</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>Lay the windows one over the other</source>
        <translation>Die Fenster übereinanderlegen</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>Lay the windows side by side</source>
        <translation>Die Fenster nebeneinanderlegen</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>Make a &amp;Film...</source>
        <translation>Einen &amp;Film machen...</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>Make a new album and fill it with pictures</source>
        <translation>Ein neues Album anlegen und mit Bildern füllen</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>Make a video file of the active slide show</source>
        <translation>Aus der aktiven Diashow eine Videodatei machen</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>Measure once more which effects this computer shows smoothly</source>
        <translation>Noch einmal messen, welche Effekte dieser Computer flüssig zeigt</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>P&amp;references...</source>
        <translation>&amp;Einstellungen...</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>Play the active slide show</source>
        <translation>Die aktive Diashow abspielen</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>Print &amp;Album...</source>
        <translation>&amp;Album drucken...</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>Print &amp;Slide Show...</source>
        <translation>Dia&amp;show drucken...</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>Print the pages of a slide show</source>
        <translation>Die Seiten einer Diashow drucken</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>Print the pages of an album</source>
        <translation>Die Seiten eines Albums drucken</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>Re&amp;hearse...</source>
        <translation>&amp;Probelauf...</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>Read all pictures and sounds and name what has changed or is missing</source>
        <translation>Alle Bilder und Töne lesen und nennen, was sich verändert hat oder fehlt</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>Rename an album</source>
        <translation>Ein Album umbenennen</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>Restore &amp;Earlier Albums...</source>
        <translation>&amp;Frühere Alben zurückholen...</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>S&amp;lide Show</source>
        <translation>Diasho&amp;w</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>Save everything and end the program</source>
        <translation>Alles speichern und das Programm beenden</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>See what comes up when in the active slide show, and what is wrong</source>
        <translation>Sehen, was in der aktiven Diashow wann kommt und was nicht stimmt</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>Slide Show &amp;Manager</source>
        <translation>Diashow-&amp;Verwaltung</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>Take a slide show to another database</source>
        <translation>Eine Diashow in eine andere Datenbank bringen</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>Take an album to another database</source>
        <translation>Ein Album in eine andere Datenbank bringen</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>Take back what was done last</source>
        <translation>Das zuletzt Getane zurücknehmen</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>Test &amp;Graphics Speed</source>
        <translation>&amp;Grafiktempo messen</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>The program&apos;s version</source>
        <translation>Die Version des Programms</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>Turn a folder of pictures into a running show</source>
        <translation>Einen Ordner mit Bildern gleich als Diashow zeigen</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>What can be done in the window in front</source>
        <translation>Was man im vorderen Fenster tun kann</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>What the program can do</source>
        <translation>Was das Programm kann</translation>
    </message>
    <message>
        <location filename="../src/program/MainMenu.cpp"/>
        <source>Write albums and slide shows into a folder that plays and checks itself</source>
        <translation>Alben und Diashows in einen Ordner schreiben, der sich selbst prüft</translation>
    </message>
    <message>
        <location filename="../src/program/UnstoredNotice.cpp"/>
        <source>The last changes are not on the disk yet, and are tried again. %1</source>
        <translation>Die letzten Änderungen sind noch nicht auf der Festplatte und werden wieder versucht. %1</translation>
    </message>
    <message>
        <location filename="../src/program/Workspace.cpp"/>
        <source>There is no room for all windows side by side.</source>
        <translation>Für alle Fenster nebeneinander reicht der Platz nicht.</translation>
    </message>
    <message>
        <location filename="../src/program/desktop/DesktopPrinters.cpp"/>
        <source>No page follows.</source>
        <translation>Es folgt keine Seite.</translation>
    </message>
    <message>
        <location filename="../src/program/desktop/DesktopPrinters.cpp"/>
        <source>There is no paper in the printer.</source>
        <translation>Im Drucker ist kein Papier.</translation>
    </message>
    <message>
        <location filename="../src/program/desktop/DesktopPrinters.cpp"/>
        <source>There is no room for the file.</source>
        <translation>Für die Datei ist kein Platz.</translation>
    </message>
    <message>
        <location filename="../src/program/frmAbout.cpp"/>
        <source>System Information Is Unavailable At This Time</source>
        <translation>Systeminformationen sind zurzeit nicht verfügbar</translation>
    </message>
    <message>
        <location filename="../src/program/frmAbout.cpp"/>
        <source>Version </source>
        <translation>Version </translation>
    </message>
    <message>
        <location filename="../src/program/frmAbout.ui"/>
        <source>&amp;System Info...</source>
        <translation>&amp;Systeminfo...</translation>
    </message>
    <message>
        <location filename="../src/program/frmAbout.ui"/>
        <source>About NEB Slide Show</source>
        <translation>Über NEB Slide Show</translation>
    </message>
    <message>
        <location filename="../src/program/frmAbout.ui"/>
        <source>Close this window</source>
        <translation>Dieses Fenster schließen</translation>
    </message>
    <message>
        <location filename="../src/program/frmAbout.ui"/>
        <source>Foreign pictures and sounds are read by processes of their own.</source>
        <translation>Fremde Bilder und Töne werden von eigenen Prozessen gelesen.</translation>
    </message>
    <message>
        <location filename="../src/program/frmAbout.ui"/>
        <source>Free software under the GNU General Public License, version 3 or later.</source>
        <translation>Freie Software unter der GNU General Public License, Version 3 oder später.</translation>
    </message>
    <message>
        <location filename="../src/program/frmAbout.ui"/>
        <source>Keeps photographs in albums and shows them as full-screen shows with transitions, captions and music.</source>
        <translation>Bewahrt Fotos in Alben auf und zeigt sie als Diashows auf dem ganzen Bildschirm, mit Übergängen, Bildtexten und Musik.</translation>
    </message>
    <message>
        <location filename="../src/program/frmAbout.ui"/>
        <source>NEB Slide Show</source>
        <translation>NEB Slide Show</translation>
    </message>
    <message>
        <location filename="../src/program/frmAbout.ui"/>
        <source>Open the desktop&apos;s own view of this machine</source>
        <translation>Die Übersicht des Systems über diesen Rechner öffnen</translation>
    </message>
    <message>
        <location filename="../src/program/frmAbout.ui"/>
        <source>System Info</source>
        <translation>Systeminfo</translation>
    </message>
    <message>
        <location filename="../src/program/frmAbout.ui"/>
        <source>The libraries that the program works with, and their licences</source>
        <translation>Die Bibliotheken, mit denen das Programm arbeitet, und ihre Lizenzen</translation>
    </message>
    <message>
        <location filename="../src/program/frmAbout.ui"/>
        <source>The program&apos;s icon</source>
        <translation>Das Symbol des Programms</translation>
    </message>
    <message>
        <location filename="../src/program/frmAbout.ui"/>
        <source>Third-party notices</source>
        <translation>Hinweise zu fremder Software</translation>
    </message>
    <message>
        <location filename="../src/program/frmNEBSlideShow.cpp"/>
        <source>%1 changes of %2, were brought back.</source>
        <translation>%1 Änderungen vom %2 Uhr wurden zurückgeholt.</translation>
    </message>
    <message>
        <location filename="../src/program/frmNEBSlideShow.cpp"/>
        <source>&amp;End and Lose the Changes</source>
        <translation>&amp;Beenden und die Änderungen verlieren</translation>
    </message>
    <message>
        <location filename="../src/program/frmNEBSlideShow.cpp"/>
        <source>&amp;End, the Changes Are Kept</source>
        <translation>&amp;Beenden, die Änderungen bleiben erhalten</translation>
    </message>
    <message>
        <location filename="../src/program/frmNEBSlideShow.cpp"/>
        <source>&amp;Go On</source>
        <translation>&amp;Weitermachen</translation>
    </message>
    <message>
        <location filename="../src/program/frmNEBSlideShow.cpp"/>
        <source>1 change of %1, was brought back.</source>
        <translation>1 Änderung vom %1 Uhr wurde zurückgeholt.</translation>
    </message>
    <message>
        <location filename="../src/program/frmNEBSlideShow.cpp"/>
        <source>Albums Cannot Be Written</source>
        <translation>Alben lassen sich nicht schreiben</translation>
    </message>
    <message>
        <location filename="../src/program/frmNEBSlideShow.cpp"/>
        <source>All changes are kept beside them in a journal, from which the next start brings them back: nothing is lost.</source>
        <translation>Alle Änderungen stehen daneben in einem Protokoll, aus dem der nächste Start sie zurückholt: Nichts geht verloren.</translation>
    </message>
    <message>
        <location filename="../src/program/frmNEBSlideShow.cpp"/>
        <source>Damaged Albums</source>
        <translation>Beschädigte Alben</translation>
    </message>
    <message>
        <location filename="../src/program/frmNEBSlideShow.cpp"/>
        <source>Earlier Albums</source>
        <translation>Frühere Alben</translation>
    </message>
    <message>
        <location filename="../src/program/frmNEBSlideShow.cpp"/>
        <source>Interrupted Changes Put Aside</source>
        <translation>Unterbrochene Änderungen beiseitegelegt</translation>
    </message>
    <message>
        <location filename="../src/program/frmNEBSlideShow.cpp"/>
        <source>Save Failed</source>
        <translation>Speichern fehlgeschlagen</translation>
    </message>
    <message>
        <location filename="../src/program/frmNEBSlideShow.cpp"/>
        <source>The albums are damaged, and cannot be written where they lie. What is left of them is shown; nothing is changed.

%1</source>
        <translation>Die Alben sind beschädigt und lassen sich dort, wo sie liegen, nicht schreiben. Gezeigt wird, was von ihnen übrig ist; nichts wird verändert.

%1</translation>
    </message>
    <message>
        <location filename="../src/program/frmNEBSlideShow.cpp"/>
        <source>The albums are not those that were changed when the program was last interrupted: they have been replaced meanwhile, by a backup perhaps, or are damaged. They are opened as they lie. The changes of then are kept here:

%1</source>
        <translation>Dies sind nicht die Alben, die geändert wurden, als das Programm zuletzt unterbrochen wurde: Sie wurden inzwischen ersetzt, vielleicht durch eine Sicherung, oder sind beschädigt. Sie werden so geöffnet, wie sie daliegen. Die damaligen Änderungen sind hier aufgehoben:

%1</translation>
    </message>
    <message>
        <location filename="../src/program/frmNEBSlideShow.cpp"/>
        <source>The albums are saved. Those of before could not be kept among the earlier ones.

%1</source>
        <translation>Die Alben sind gespeichert. Die bisherigen konnten nicht unter den früheren aufgehoben werden.

%1</translation>
    </message>
    <message>
        <location filename="../src/program/frmNEBSlideShow.cpp"/>
        <source>The albums could not be saved.

%1

%2 Mend what is wrong (make room on the disk, say, or connect it again), then end the program once more.</source>
        <translation>Die Alben konnten nicht gespeichert werden.

%1

%2 Beheben Sie die Ursache (schaffen Sie etwa Platz auf der Festplatte, oder schließen Sie sie wieder an), und beenden Sie das Programm dann noch einmal.</translation>
    </message>
    <message>
        <location filename="../src/program/frmNEBSlideShow.cpp"/>
        <source>The folder of the albums cannot be written, so that nothing new can be kept.
Give yourself permission to write there, or choose another folder by the setting DBPath.

%1</source>
        <translation>In den Ordner der Alben kann nicht geschrieben werden, sodass nichts Neues aufbewahrt werden kann.
Geben Sie sich dort das Recht zu schreiben, oder wählen Sie mit der Einstellung DBPath einen anderen Ordner.

%1</translation>
    </message>
    <message>
        <location filename="../src/program/frmNEBSlideShow.cpp"/>
        <source>The last changes are nowhere on the disk yet. The program stays open, so that nothing is lost.</source>
        <translation>Die letzten Änderungen sind noch nirgends auf der Festplatte. Das Programm bleibt offen, damit nichts verloren geht.</translation>
    </message>
    <message>
        <location filename="../src/program/frmNEBSlideShow.cpp"/>
        <source>These albums can be looked at, but not changed: %1 cannot be written.</source>
        <translation>Diese Alben lassen sich ansehen, aber nicht ändern: %1 ist nicht beschreibbar.</translation>
    </message>
    <message>
        <location filename="../src/program/frmNEBSlideShow.cpp"/>
        <source>d MMMM, HH:mm</source>
        <translation>d. MMMM, HH:mm</translation>
    </message>
    <message>
        <location filename="../src/program/frmNEBSlideShowMenu.cpp"/>
        <source>Albums Cannot Be Opened</source>
        <translation>Alben lassen sich nicht öffnen</translation>
    </message>
    <message>
        <location filename="../src/program/frmNEBSlideShowMenu.cpp"/>
        <source>The albums in %1 are those that are open here.</source>
        <translation>Die Alben in %1 sind die, welche hier schon offen sind.</translation>
    </message>
    <message>
        <location filename="../src/program/frmNEBSlideShowMenu.cpp"/>
        <source>The albums in %1 open in a window of their own.</source>
        <translation>Die Alben in %1 öffnen sich in einem eigenen Fenster.</translation>
    </message>
    <message>
        <location filename="../src/program/frmNEBSlideShowMenu.cpp"/>
        <source>The program cannot be started once more to open the albums in %1.</source>
        <translation>Das Programm lässt sich nicht noch einmal starten, um die Alben in %1 zu öffnen.</translation>
    </message>
    <message>
        <location filename="../src/program/frmNEBSlideShowMenu.cpp"/>
        <source>What was opened comes as soon as the window in front has closed.</source>
        <translation>Das Geöffnete kommt, sobald das vordere Fenster geschlossen ist.</translation>
    </message>
    <message>
        <location filename="../src/program/help/frmHelp.cpp"/>
        <source>Not on this page.</source>
        <translation>Nicht auf dieser Seite.</translation>
    </message>
    <message>
        <location filename="../src/program/help/frmHelp.cpp"/>
        <source>Pages that have all words of the field above are listed here.</source>
        <translation>Hier stehen die Seiten, die alle Wörter des Feldes darüber haben.</translation>
    </message>
    <message>
        <location filename="../src/program/help/frmHelp.cpp"/>
        <source>en</source>
        <comment>the language of the help: the folder of its pages</comment>
        <translation>de</translation>
    </message>
    <message>
        <location filename="../src/program/help/frmHelp.ui"/>
        <source>&amp;Back</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <location filename="../src/program/help/frmHelp.ui"/>
        <source>&amp;Search</source>
        <translation>&amp;Suchen</translation>
    </message>
    <message>
        <location filename="../src/program/help/frmHelp.ui"/>
        <source>A word</source>
        <translation>Ein Wort</translation>
    </message>
    <message>
        <location filename="../src/program/help/frmHelp.ui"/>
        <source>All pages of the help; Enter or a click opens one</source>
        <translation>Alle Seiten der Hilfe; die Eingabetaste oder ein Klick öffnet eine</translation>
    </message>
    <message>
        <location filename="../src/program/help/frmHelp.ui"/>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <location filename="../src/program/help/frmHelp.ui"/>
        <source>C&amp;ontents</source>
        <translation>Inha&amp;lt</translation>
    </message>
    <message>
        <location filename="../src/program/help/frmHelp.ui"/>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <location filename="../src/program/help/frmHelp.ui"/>
        <source>Find on This Page</source>
        <translation>Auf dieser Seite suchen</translation>
    </message>
    <message>
        <location filename="../src/program/help/frmHelp.ui"/>
        <source>Find on this page</source>
        <translation>Auf dieser Seite suchen</translation>
    </message>
    <message>
        <location filename="../src/program/help/frmHelp.ui"/>
        <source>Fo&amp;rward</source>
        <translation>V&amp;or</translation>
    </message>
    <message>
        <location filename="../src/program/help/frmHelp.ui"/>
        <source>Forward</source>
        <translation>Vor</translation>
    </message>
    <message>
        <location filename="../src/program/help/frmHelp.ui"/>
        <source>Go back to the page that was read before (Alt+Left)</source>
        <translation>Zur zuvor gelesenen Seite zurück (Alt+Links)</translation>
    </message>
    <message>
        <location filename="../src/program/help/frmHelp.ui"/>
        <source>Go on to the page from which you went back (Alt+Right)</source>
        <translation>Weiter zu der Seite, von der Sie zurückgegangen sind (Alt+Rechts)</translation>
    </message>
    <message>
        <location filename="../src/program/help/frmHelp.ui"/>
        <source>Go to the first page of the help</source>
        <translation>Zur ersten Seite der Hilfe</translation>
    </message>
    <message>
        <location filename="../src/program/help/frmHelp.ui"/>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <location filename="../src/program/help/frmHelp.ui"/>
        <source>In&amp;dex</source>
        <translation>Inde&amp;x</translation>
    </message>
    <message>
        <location filename="../src/program/help/frmHelp.ui"/>
        <source>Index</source>
        <translation>Index</translation>
    </message>
    <message>
        <location filename="../src/program/help/frmHelp.ui"/>
        <source>Lar&amp;ger</source>
        <translation>&amp;Größer</translation>
    </message>
    <message>
        <location filename="../src/program/help/frmHelp.ui"/>
        <source>Larger</source>
        <translation>Größer</translation>
    </message>
    <message>
        <location filename="../src/program/help/frmHelp.ui"/>
        <source>Larger letters (Ctrl+Plus, Ctrl and the wheel; Ctrl+0: the usual size)</source>
        <translation>Größere Schrift (Strg+Plus, Strg und das Rad; Strg+0: die übliche Größe)</translation>
    </message>
    <message>
        <location filename="../src/program/help/frmHelp.ui"/>
        <source>Look for words on the page that is read (Ctrl+F)</source>
        <translation>Wörter auf der Seite suchen, die Sie lesen (Strg+F)</translation>
    </message>
    <message>
        <location filename="../src/program/help/frmHelp.ui"/>
        <source>NEB Slide Show Help</source>
        <translation>Hilfe zu NEB Slide Show</translation>
    </message>
    <message>
        <location filename="../src/program/help/frmHelp.ui"/>
        <source>Ne&amp;xt</source>
        <translation>Nächs&amp;tes</translation>
    </message>
    <message>
        <location filename="../src/program/help/frmHelp.ui"/>
        <source>Pages found</source>
        <translation>Gefundene Seiten</translation>
    </message>
    <message>
        <location filename="../src/program/help/frmHelp.ui"/>
        <source>Pre&amp;vious</source>
        <translation>&amp;Voriges</translation>
    </message>
    <message>
        <location filename="../src/program/help/frmHelp.ui"/>
        <source>S&amp;maller</source>
        <translation>&amp;Kleiner</translation>
    </message>
    <message>
        <location filename="../src/program/help/frmHelp.ui"/>
        <source>S&amp;tart</source>
        <translation>Anfa&amp;ng</translation>
    </message>
    <message>
        <location filename="../src/program/help/frmHelp.ui"/>
        <source>Smaller</source>
        <translation>Kleiner</translation>
    </message>
    <message>
        <location filename="../src/program/help/frmHelp.ui"/>
        <source>Smaller letters (Ctrl+Minus, Ctrl and the wheel)</source>
        <translation>Kleinere Schrift (Strg+Minus, Strg und das Rad)</translation>
    </message>
    <message>
        <location filename="../src/program/help/frmHelp.ui"/>
        <source>Start</source>
        <translation>Anfang</translation>
    </message>
    <message>
        <location filename="../src/program/help/frmHelp.ui"/>
        <source>Subjects by their names; Enter or a click opens the page</source>
        <translation>Themen nach ihren Namen; die Eingabetaste oder ein Klick öffnet die Seite</translation>
    </message>
    <message>
        <location filename="../src/program/help/frmHelp.ui"/>
        <source>The next place (F3)</source>
        <translation>Die nächste Stelle (F3)</translation>
    </message>
    <message>
        <location filename="../src/program/help/frmHelp.ui"/>
        <source>The page that is read; Tab goes from link to link, Enter opens one</source>
        <translation>Die Seite, die gelesen wird; Tab geht von Verweis zu Verweis, die Eingabetaste öffnet einen</translation>
    </message>
    <message>
        <location filename="../src/program/help/frmHelp.ui"/>
        <source>The pages that have the words; Enter or a click opens one</source>
        <translation>Die Seiten, die die Wörter haben; die Eingabetaste oder ein Klick öffnet eine</translation>
    </message>
    <message>
        <location filename="../src/program/help/frmHelp.ui"/>
        <source>The place before (Shift+F3)</source>
        <translation>Die Stelle davor (Umschalt+F3)</translation>
    </message>
    <message>
        <location filename="../src/program/help/frmHelp.ui"/>
        <source>Type a word: the list shows what has it (Down: into the list)</source>
        <translation>Geben Sie ein Wort ein: Die Liste zeigt, was es hat (Pfeil nach unten: in die Liste)</translation>
    </message>
    <message>
        <location filename="../src/program/help/frmHelp.ui"/>
        <source>Type words: the pages that have all of them are listed (Down: into the list)</source>
        <translation>Geben Sie Wörter ein: Die Seiten, die alle haben, werden aufgelistet (Pfeil nach unten: in die Liste)</translation>
    </message>
    <message>
        <location filename="../src/program/help/frmHelp.ui"/>
        <source>Word in the index</source>
        <translation>Wort im Index</translation>
    </message>
    <message>
        <location filename="../src/program/help/frmHelp.ui"/>
        <source>Words to look for</source>
        <translation>Gesuchte Wörter</translation>
    </message>
    <message>
        <location filename="../src/program/help/frmHelp.ui"/>
        <source>Words to look for on this page (Enter: the next place, Esc: close)</source>
        <translation>Gesuchte Wörter auf dieser Seite (Eingabetaste: die nächste Stelle, Esc: schließen)</translation>
    </message>
    <message>
        <location filename="../src/program/modMachineSettings.cpp"/>
        <source>Graphics speed measured: this computer shows effects up to the level %1.</source>
        <translation>Grafiktempo gemessen: Dieser Computer zeigt Effekte bis zur Stufe %1.</translation>
    </message>
    <message>
        <location filename="../src/program/modMachineSettings.cpp"/>
        <source>Graphics speed not measured: usual settings are used.</source>
        <translation>Grafiktempo nicht gemessen: Es gelten die üblichen Einstellungen.</translation>
    </message>
    <message>
        <location filename="../src/program/modMachineSettings.cpp"/>
        <source>The test of the graphics speed was left: all settings stay as they were.</source>
        <translation>Die Messung des Grafiktempos wurde abgebrochen: Alle Einstellungen bleiben, wie sie waren.</translation>
    </message>
    <message>
        <location filename="../src/program/modMain.cpp"/>
        <source>Albums Cannot Be Read</source>
        <translation>Alben lassen sich nicht lesen</translation>
    </message>
    <message>
        <location filename="../src/program/modMain.cpp"/>
        <source>Albums In Use</source>
        <translation>Alben in Gebrauch</translation>
    </message>
    <message>
        <location filename="../src/program/modMain.cpp"/>
        <source>Albums Not Found</source>
        <translation>Alben nicht gefunden</translation>
    </message>
    <message>
        <location filename="../src/program/modMain.cpp"/>
        <source>Operation Denied</source>
        <translation>Das geht nicht</translation>
    </message>
    <message>
        <location filename="../src/program/modMain.cpp"/>
        <source>Settings Cannot Be Read</source>
        <translation>Einstellungen lassen sich nicht lesen</translation>
    </message>
    <message>
        <location filename="../src/program/modMain.cpp"/>
        <source>The albums cannot be opened, as nothing can be written beside them: %1.

Nothing has been changed.</source>
        <translation>Die Alben lassen sich nicht öffnen, weil neben ihnen nichts geschrieben werden kann: %1.

Nichts wurde verändert.</translation>
    </message>
    <message>
        <location filename="../src/program/modMain.cpp"/>
        <source>The albums cannot be read. Nothing has been changed.

%1</source>
        <translation>Die Alben lassen sich nicht lesen. Nichts wurde verändert.

%1</translation>
    </message>
    <message>
        <location filename="../src/program/modMain.cpp"/>
        <source>The folder of the albums is not there:
%1

Perhaps it lies on a disk that is not connected. Connect it and start the program once more, or choose another folder by the setting DBPath in
%2

Nothing has been made there.</source>
        <translation>Der Ordner der Alben ist nicht da:
%1

Vielleicht liegt er auf einem Laufwerk, das nicht angeschlossen ist. Schließen Sie es an, und starten Sie das Programm noch einmal, oder wählen Sie einen anderen Ordner mit der Einstellung DBPath in
%2

Dort wurde nichts angelegt.</translation>
    </message>
    <message>
        <location filename="../src/program/modMain.cpp"/>
        <source>The settings cannot be read, so that it is not known where the albums are.

%1</source>
        <translation>Die Einstellungen lassen sich nicht lesen, sodass nicht bekannt ist, wo die Alben liegen.

%1</translation>
    </message>
    <message>
        <location filename="../src/program/modMain.cpp"/>
        <source>These albums are open on the computer &quot;%1&quot;, or the program has crashed there.

When two programs write the same albums, what one of them has changed is lost. Only go on when the program is not running there.

Open the albums here?</source>
        <translation>Diese Alben sind auf dem Rechner „%1“ geöffnet, oder das Programm ist dort abgestürzt.

Wenn zwei Programme dieselben Alben schreiben, geht verloren, was eines von beiden geändert hat. Machen Sie nur weiter, wenn das Programm dort nicht läuft.

Die Alben hier öffnen?</translation>
    </message>
    <message>
        <location filename="../src/program/modMain.cpp"/>
        <source>You can only run a single instance of NEB Slide Show at a time.</source>
        <translation>NEB Slide Show kann nur einmal zur selben Zeit laufen.</translation>
    </message>
    <message>
        <location filename="../src/program/opening/OpenedPaths.cpp"/>
        <source>%1 files are no pictures.</source>
        <translation>%1 Dateien sind keine Bilder.</translation>
    </message>
    <message>
        <location filename="../src/program/opening/OpenedPaths.cpp"/>
        <source>%1 folders or pictures are not there.</source>
        <translation>%1 Ordner oder Bilder sind nicht da.</translation>
    </message>
    <message>
        <location filename="../src/program/opening/OpenedPaths.cpp"/>
        <source>%1 is no picture.</source>
        <translation>%1 ist kein Bild.</translation>
    </message>
    <message>
        <location filename="../src/program/opening/OpenedPaths.cpp"/>
        <source>Cannot Be Opened</source>
        <translation>Lässt sich nicht öffnen</translation>
    </message>
    <message>
        <location filename="../src/program/opening/OpenedPaths.cpp"/>
        <source>There is no folder or picture %1.</source>
        <translation>Es gibt keinen Ordner und kein Bild %1.</translation>
    </message>
    <message>
        <location filename="../src/program/report/CopyReport.cpp"/>
        <source>The report is on the clipboard: paste it into a letter. No name of yours and no picture is in it.</source>
        <translation>Der Bericht ist in der Zwischenablage: Fügen Sie ihn in einen Brief ein. Kein Name von Ihnen und kein Bild ist darin.</translation>
    </message>
    <message>
        <location filename="../src/show/PreferencesState.cpp"/>
        <source>The Slide Timeout must be &gt;= 4 seconds.</source>
        <translation>Ein Dia muss mindestens 4 Sekunden lang zu sehen sein.</translation>
    </message>
    <message>
        <location filename="../src/show/PreferencesState.cpp"/>
        <source>The Slide Timeout must be numeric.</source>
        <translation>Die Dauer eines Dias muss eine Zahl sein.</translation>
    </message>
    <message>
        <location filename="../src/show/PreferencesState.cpp"/>
        <source>You must enter an integer from 0 to 1000 for the delay.</source>
        <translation>Die Pause muss eine ganze Zahl von 0 bis 1000 sein.</translation>
    </message>
    <message>
        <location filename="../src/show/PreferencesState.cpp"/>
        <source>You must enter an integer from 1 to 100 for the step.</source>
        <translation>Der Schritt muss eine ganze Zahl von 1 bis 100 sein.</translation>
    </message>
    <message>
        <location filename="../src/show/PreferencesState.h"/>
        <source>Intense</source>
        <translation>Bewegt</translation>
    </message>
    <message>
        <location filename="../src/show/PreferencesState.h"/>
        <source>Lite</source>
        <translation>Ruhig</translation>
    </message>
    <message>
        <location filename="../src/show/PreferencesState.h"/>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <location filename="../src/show/ShowRunSlides.cpp"/>
        <source>: Current slide missing!</source>
        <translation>: Das aktuelle Dia fehlt!</translation>
    </message>
    <message>
        <location filename="../src/show/ShowRunSlides.cpp"/>
        <source>: Current slide still loading!</source>
        <translation>: Das aktuelle Dia wird noch geladen!</translation>
    </message>
    <message>
        <location filename="../src/show/ShowRunSlides.cpp"/>
        <source>Could not find album.</source>
        <translation>Das Album wurde nicht gefunden.</translation>
    </message>
    <message>
        <location filename="../src/show/ShowRunSlides.cpp"/>
        <source>Slide #%1 of the current slide show does not exist!</source>
        <translation>Das Dia Nr. %1 der aktuellen Diashow gibt es nicht!</translation>
    </message>
    <message>
        <location filename="../src/show/ShowRunSlides.cpp"/>
        <source>The Active Slide Show does not exist!  Please select a new one!</source>
        <translation>Die aktive Diashow gibt es nicht! Bitte wählen Sie eine andere!</translation>
    </message>
    <message>
        <location filename="../src/show/ShowRunSlides.cpp"/>
        <source>You must have an active slideshow!</source>
        <translation>Es muss eine aktive Diashow geben!</translation>
    </message>
    <message>
        <location filename="../src/show/SoundSteps.cpp"/>
        <source>The Sound Track for this group of slides appears to be empty.</source>
        <translation>Die Tonspur zu diesen Dias scheint leer zu sein.</translation>
    </message>
    <message>
        <location filename="../src/show/SoundSteps.cpp"/>
        <source>The Sound Track for this group of slides does not exist.</source>
        <translation>Die Tonspur zu diesen Dias gibt es nicht.</translation>
    </message>
    <message>
        <location filename="../src/show/SoundSteps.cpp"/>
        <source>The Sound Track for this slide does not exist.</source>
        <translation>Den Ton zu diesem Dia gibt es nicht.</translation>
    </message>
    <message>
        <location filename="../src/show/SpeedLadder.cpp"/>
        <source>Simple</source>
        <translation>Einfach</translation>
    </message>
    <message>
        <location filename="../src/show/SpeedLadder.cpp"/>
        <source>Testing Graphics Performance - %1 Effects (%2)</source>
        <translation>Grafiktempo wird gemessen - Effekte: %1 (%2)</translation>
    </message>
    <message>
        <location filename="../src/show/film/FilmCodec.cpp"/>
        <source>No film can be made: a part of the program cannot be loaded. (%1)</source>
        <translation>Es kann kein Film gemacht werden: Ein Teil des Programms lässt sich nicht laden. (%1)</translation>
    </message>
    <message>
        <location filename="../src/show/film/FilmCodec.cpp"/>
        <source>No film can be made: a part of the program is missing.</source>
        <translation>Es kann kein Film gemacht werden: Ein Teil des Programms fehlt.</translation>
    </message>
    <message>
        <location filename="../src/show/film/FilmEstimate.cpp"/>
        <source>The film needs up to %1, and a file on this disk can be 4 GB large at most:
%2</source>
        <translation>Der Film braucht bis zu %1, und eine Datei kann auf diesem Laufwerk höchstens 4 GB groß sein:
%2</translation>
    </message>
    <message>
        <location filename="../src/show/film/FilmEstimate.cpp"/>
        <source>There is not enough room: the film needs up to %1, and of %2 that are free it takes %3 at most, in
%4</source>
        <translation>Der Platz reicht nicht: Der Film braucht bis zu %1, und von %2, die frei sind, nimmt er höchstens %3, in
%4</translation>
    </message>
    <message>
        <location filename="../src/show/film/FilmFile.cpp"/>
        <source>The disk is full: %1 are left on it, and the film leaves %2 free.</source>
        <translation>Das Laufwerk ist voll: %1 sind noch frei, und der Film lässt %2 frei.</translation>
    </message>
    <message>
        <location filename="../src/show/film/FilmFile.cpp"/>
        <source>The folder of the file is not there any more.</source>
        <translation>Der Ordner der Datei ist nicht mehr da.</translation>
    </message>
    <message>
        <location filename="../src/show/film/FilmMaker.cpp"/>
        <source>No slide of the show comes up, so that there is nothing to make a film of.</source>
        <translation>Kein Dia der Diashow kommt zum Zug, sodass es nichts gibt, wovon ein Film zu machen wäre.</translation>
    </message>
    <message>
        <location filename="../src/show/film/FilmMakerFaults.cpp"/>
        <source>slide %1: </source>
        <translation>Dia %1: </translation>
    </message>
    <message>
        <location filename="../src/show/film/FilmMakerFaults.cpp"/>
        <source>the picture cannot be read: %1</source>
        <translation>das Bild ist nicht lesbar: %1</translation>
    </message>
    <message>
        <location filename="../src/show/film/FilmMakerFaults.cpp"/>
        <source>the picture is missing: %1</source>
        <translation>das Bild fehlt: %1</translation>
    </message>
    <message>
        <location filename="../src/show/film/FilmMakerFaults.cpp"/>
        <source>the sound cannot be played: %1</source>
        <translation>der Ton lässt sich nicht abspielen: %1</translation>
    </message>
    <message>
        <location filename="../src/show/film/FilmMakerFaults.cpp"/>
        <source>the sound is missing: %1</source>
        <translation>der Ton fehlt: %1</translation>
    </message>
    <message>
        <location filename="../src/show/film/FilmOrder.cpp"/>
        <source>A film has 24, 25, 30, 50 or 60 frames a second.</source>
        <translation>Ein Film hat 24, 25, 30, 50 oder 60 Bilder in der Sekunde.</translation>
    </message>
    <message>
        <location filename="../src/show/film/FilmOrder.cpp"/>
        <source>A film is 2 by 2 to 7680 by 4320 pixels large, upright too, and both are even numbers.</source>
        <translation>Ein Film ist 2 mal 2 bis 7680 mal 4320 Pixel groß, auch hochkant, und beides sind gerade Zahlen.</translation>
    </message>
    <message>
        <location filename="../src/show/film/FilmOrder.cpp"/>
        <source>Full HD</source>
        <translation>Full HD</translation>
    </message>
    <message>
        <location filename="../src/show/film/FilmOrder.cpp"/>
        <source>HD</source>
        <translation>HD</translation>
    </message>
    <message>
        <location filename="../src/show/film/FilmOrder.cpp"/>
        <source>MP4 (H.264, AAC): televisions, phones, the web</source>
        <translation>MP4 (H.264, AAC): Fernseher, Telefone, das Web</translation>
    </message>
    <message>
        <location filename="../src/show/film/FilmOrder.cpp"/>
        <source>Matroska, lossless (FFV1, FLAC): archives</source>
        <translation>Matroska, verlustfrei (FFV1, FLAC): Archive</translation>
    </message>
    <message>
        <location filename="../src/show/film/FilmOrder.cpp"/>
        <source>Square</source>
        <translation>Quadrat</translation>
    </message>
    <message>
        <location filename="../src/show/film/FilmOrder.cpp"/>
        <source>The first slide of the film comes before its last one.</source>
        <translation>Das erste Dia des Films kommt vor dem letzten.</translation>
    </message>
    <message>
        <location filename="../src/show/film/FilmOrder.cpp"/>
        <source>The name of a film ends in .mp4, .webm or .mkv.</source>
        <translation>Der Name eines Films endet auf .mp4, .webm oder .mkv.</translation>
    </message>
    <message>
        <location filename="../src/show/film/FilmOrder.cpp"/>
        <source>The quality is a number from 1 to 100.</source>
        <translation>Die Qualität ist eine Zahl von 1 bis 100.</translation>
    </message>
    <message>
        <location filename="../src/show/film/FilmOrder.cpp"/>
        <source>Ultra HD</source>
        <translation>Ultra HD</translation>
    </message>
    <message>
        <location filename="../src/show/film/FilmOrder.cpp"/>
        <source>Upright, for a phone</source>
        <translation>Hochkant, fürs Telefon</translation>
    </message>
    <message>
        <location filename="../src/show/film/FilmOrder.cpp"/>
        <source>WebM (VP9, Opus): the web</source>
        <translation>WebM (VP9, Opus): das Web</translation>
    </message>
    <message>
        <location filename="../src/show/film/FilmPlan.cpp"/>
        <source>Slide %1</source>
        <translation>Dia %1</translation>
    </message>
    <message>
        <location filename="../src/show/film/FilmWriter.cpp"/>
        <source>A frame is of another kind than the film.</source>
        <translation>Ein Einzelbild ist von anderer Art als der Film.</translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/CueTexts.cpp"/>
        <source>%1 notes</source>
        <translation>%1 Hinweise</translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/CueTexts.cpp"/>
        <source>%1 problems</source>
        <translation>%1 Probleme</translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/CueTexts.cpp"/>
        <source>%1, running time %2, %3</source>
        <translation>%1, Laufzeit %2, %3</translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/CueTexts.cpp"/>
        <source>, begins anew</source>
        <translation>, beginnt von vorn</translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/CueTexts.cpp"/>
        <source>, begins anew %1 times</source>
        <translation>, beginnt %1-mal von vorn</translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/CueTexts.cpp"/>
        <source>, ends at %1</source>
        <translation>, endet bei %1</translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/CueTexts.cpp"/>
        <source>, fades to %1</source>
        <translation>, wird leiser bis %1</translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/CueTexts.cpp"/>
        <source>1 note</source>
        <translation>1 Hinweis</translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/CueTexts.cpp"/>
        <source>1 problem</source>
        <translation>1 Problem</translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/CueTexts.cpp"/>
        <source>1 slide</source>
        <translation>1 Dia</translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/CueTexts.cpp"/>
        <source>; the show stops by itself</source>
        <translation>; die Diashow hält von selbst an</translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/CueTexts.cpp"/>
        <source>goes on</source>
        <translation>läuft weiter</translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/CueTexts.cpp"/>
        <source>moves</source>
        <translation>springt</translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/CueTexts.cpp"/>
        <source>no problems</source>
        <translation>keine Probleme</translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/CueTexts.cpp"/>
        <source>no slides</source>
        <translation>keine Dias</translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/CueTexts.cpp"/>
        <source>not played</source>
        <translation>nicht gespielt</translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/CueTexts.cpp"/>
        <source>over</source>
        <translation>vorbei</translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/CueTexts.cpp"/>
        <source>resumes</source>
        <translation>setzt fort</translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/CueTexts.cpp"/>
        <source>silent</source>
        <translation>still</translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/CueTexts.cpp"/>
        <source>starts</source>
        <translation>beginnt</translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/RehearsalFindings.cpp"/>
        <source>%1: nothing has this place; the show cannot start</source>
        <translation>%1: Dieser Platz ist leer; die Diashow kann nicht beginnen</translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/RehearsalFindings.cpp"/>
        <source>%1: nothing has this place; the show goes back to its start there, and slide %2 never comes up by itself</source>
        <translation>%1: Dieser Platz ist leer; die Diashow springt dort zum Anfang, und Dia %2 kommt nie von selbst</translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/RehearsalFindings.cpp"/>
        <source>, too many for the screen, and is set in %1 points in place of %2</source>
        <translation>, zu viele für den Bildschirm, und wird in %1 statt %2 Punkt gesetzt</translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/RehearsalFindings.cpp"/>
        <source>NoSlide.bmp takes its place</source>
        <translation>NoSlide.bmp springt ein</translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/RehearsalFindings.cpp"/>
        <source>a box comes up: &quot;%1&quot;</source>
        <translation>eine Mitteilung erscheint: „%1“</translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/RehearsalFindings.cpp"/>
        <source>it stays up for %1, but its transition takes %2; %3 in all have too little time</source>
        <translation>es bleibt %1 lang stehen, aber sein Übergang braucht %2; insgesamt zu wenig Zeit: %3</translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/RehearsalFindings.cpp"/>
        <source>its sound </source>
        <translation>sein Ton: </translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/RehearsalFindings.cpp"/>
        <source>its sound is never heard, because it does not override sound track %1: %2</source>
        <translation>sein Ton ist nie zu hören, weil er nicht an die Stelle der Tonspur %1 tritt: %2</translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/RehearsalFindings.cpp"/>
        <source>no show comes to this place</source>
        <translation>zu diesem Platz kommt keine Diashow</translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/RehearsalFindings.cpp"/>
        <source>the album has no slide number %1; the show stops there</source>
        <translation>das Album hat kein Dia mit der Nummer %1; die Diashow hält dort an</translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/RehearsalFindings.cpp"/>
        <source>the caption takes %1 lines</source>
        <translation>der Bildtext braucht %1 Zeilen</translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/RehearsalFindings.cpp"/>
        <source>the picture cannot be read (%1): %2</source>
        <translation>das Bild ist nicht lesbar (%1): %2</translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/RehearsalFindings.cpp"/>
        <source>the picture is missing (%1): %2</source>
        <translation>das Bild fehlt (%1): %2</translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/RehearsalFindings.cpp"/>
        <source>the place is taken twice; slide number %1 of the album never comes up there</source>
        <translation>der Platz ist doppelt vergeben; das Dia Nummer %1 des Albums kommt dort nie</translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/RehearsalFindings.cpp"/>
        <source>the show has no slides</source>
        <translation>die Diashow hat keine Dias</translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/RehearsalFindings.cpp"/>
        <source>the show stops, because NoSlide.bmp is missing as well</source>
        <translation>die Diashow hält an, weil auch NoSlide.bmp fehlt</translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/RehearsalFindings.cpp"/>
        <source>the show takes more than %1 days; the rest was not rehearsed</source>
        <translation>die Diashow dauert länger als %1 Tage; der Rest wurde nicht geprobt</translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/RehearsalNotebook.cpp"/>
        <source>cannot be played: %1: %2</source>
        <translation>lässt sich nicht abspielen: %1: %2</translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/RehearsalNotebook.cpp"/>
        <source>is empty: %1</source>
        <translation>ist leer: %1</translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/RehearsalNotebook.cpp"/>
        <source>is missing: %1</source>
        <translation>fehlt: %1</translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/RehearsalNotebook.cpp"/>
        <source>slide %1</source>
        <translation>Dia %1</translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/RehearsalNotebook.cpp"/>
        <source>slides %1 to %2</source>
        <translation>Dias %1 bis %2</translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/RehearsalSound.cpp"/>
        <source>There is no such file.</source>
        <translation>Diese Datei gibt es nicht.</translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/RehearsalTracks.cpp"/>
        <source>%1: sound track %2 (%3) and sound track %4 (%5) overlap; number %2 is heard</source>
        <translation>%1: Tonspur %2 (%3) und Tonspur %4 (%5) überlappen sich; zu hören ist Nummer %2</translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/RehearsalTracks.cpp"/>
        <source>it is %1 long and falls silent on slide %2, %3 before its last slide is over</source>
        <translation>sie ist %1 lang und verstummt bei Dia %2, %3 vor dem Ende ihres letzten Dias</translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/RehearsalTracks.cpp"/>
        <source>it is cut off when its slides end, after %1 of its %2</source>
        <translation>sie wird mit dem Ende ihrer Dias abgebrochen, nach %1 von %2</translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/RehearsalTracks.cpp"/>
        <source>it never fades, because slide %1 does not sound of it</source>
        <translation>sie wird nie leiser, weil Dia %1 nicht zu ihr erklingt</translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/RehearsalTracks.cpp"/>
        <source>it never fades, because the show has no slide %1</source>
        <translation>sie wird nie leiser, weil die Diashow kein Dia %1 hat</translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/RehearsalTracks.cpp"/>
        <source>it stays up for %1, but its transition takes %2: %3</source>
        <translation>es bleibt %1 lang stehen, aber sein Übergang braucht %2: %3</translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/RehearsalTracks.cpp"/>
        <source>its slides stay up for %1 each</source>
        <translation>ihre Dias bleiben je %1 lang stehen</translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/RehearsalTracks.cpp"/>
        <source>sound track %1 (%2): it starts at slide %3 and ends at slide %4, so that it is never heard</source>
        <translation>Tonspur %1 (%2): Sie beginnt bei Dia %3 und endet bei Dia %4, sodass sie nie zu hören ist</translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/RehearsalTracks.cpp"/>
        <source>sound track %1 (%2, %3): %4</source>
        <translation>Tonspur %1 (%2, %3): %4</translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/RehearsalTracks.cpp"/>
        <source>the show has no such slide, so that it is never heard</source>
        <translation>die Diashow hat kein solches Dia, sodass sie nie zu hören ist</translation>
    </message>
    <message>
        <location filename="../src/show/rehearsal/RehearsalTracks.cpp"/>
        <source>there is no fade in a manual show</source>
        <translation>in einer Diashow von Hand wird nicht ausgeblendet</translation>
    </message>
    <message>
        <location filename="../src/sound/clsDirectSound.cpp"/>
        <source>Volume must be &gt;0 and &lt;=100</source>
        <translation>Die Lautstärke muss zwischen 1 und 100 liegen</translation>
    </message>
    <message>
        <location filename="../src/sound/clsDirectSound.cpp"/>
        <source>You must first load a sound file to be played.</source>
        <translation>Laden Sie zuerst eine Tondatei, die gespielt werden soll.</translation>
    </message>
    <message>
        <location filename="../src/sound/clsDirectSoundRecorder.cpp"/>
        <source>Recording is not supported by your sound card.</source>
        <translation>Ihre Soundkarte unterstützt keine Aufnahmen.</translation>
    </message>
    <message>
        <location filename="../src/sound/clsDirectSoundRecorder.cpp"/>
        <source>Recording is not supported on your sound card.</source>
        <translation>Mit Ihrer Soundkarte sind keine Aufnahmen möglich.</translation>
    </message>
    <message>
        <location filename="../src/sound/clsDirectSoundRecorder.cpp"/>
        <source>There is no sound card to play the recording on.</source>
        <translation>Es gibt keine Soundkarte, um die Aufnahme abzuspielen.</translation>
    </message>
    <message>
        <location filename="../src/sound/clsDirectSoundRecorder.cpp"/>
        <source>This card does not support full duplex.  You may still record sound.</source>
        <translation>Diese Karte kann nicht zugleich aufnehmen und spielen. Aufnehmen können Sie trotzdem.</translation>
    </message>
    <message>
        <location filename="../src/sound/clsDirectSoundRecorder.cpp"/>
        <source>Unable to initialize sound card for capture.</source>
        <translation>Die Soundkarte lässt sich nicht für Aufnahmen einrichten.</translation>
    </message>
    <message>
        <location filename="../src/sound/clsDirectSoundRecorder.cpp"/>
        <source>Unable to use the sound system.</source>
        <translation>Das Soundsystem lässt sich nicht benutzen.</translation>
    </message>
    <message>
        <location filename="../src/sound/clsDirectSoundRecorder.cpp"/>
        <source>You Must First Record a Sound.</source>
        <translation>Nehmen Sie zuerst einen Ton auf.</translation>
    </message>
    <message>
        <location filename="../src/sound/decoding/SoundDecoder.cpp"/>
        <source>The file is empty; there is no sound in it.</source>
        <translation>Die Datei ist leer; sie enthält keinen Ton.</translation>
    </message>
    <message>
        <location filename="../src/sound/decoding/SoundDecoder.cpp"/>
        <source>The file is not a sound that this program can play.</source>
        <translation>Die Datei ist kein Ton, den dieses Programm abspielen kann.</translation>
    </message>
    <message>
        <location filename="../src/sound/decoding/SoundDecoderMpeg.cpp"/>
        <source>The sound is damaged and cannot be played.</source>
        <translation>Der Ton ist beschädigt und lässt sich nicht abspielen.</translation>
    </message>
    <message>
        <location filename="../src/sound/decoding/SoundDecoderWave.cpp"/>
        <source>The sound has %1 channels; this program plays %2 at most.</source>
        <translation>Der Ton hat %1 Kanäle; dieses Programm spielt höchstens %2.</translation>
    </message>
    <message>
        <location filename="../src/sound/decoding/SoundDecoderWave.cpp"/>
        <source>The sound is damaged, or of a kind that this program cannot play.</source>
        <translation>Der Ton ist beschädigt oder von einer Art, die dieses Programm nicht abspielen kann.</translation>
    </message>
    <message>
        <location filename="../src/sound/devices/ClockedSound.cpp"/>
        <source>The sound has no such place.</source>
        <translation>Diese Stelle gibt es im Ton nicht.</translation>
    </message>
    <message>
        <location filename="../src/sound/devices/PcmDecoder.cpp"/>
        <source>The recording is of a kind that cannot be played.</source>
        <translation>Die Aufnahme ist von einer Art, die sich nicht abspielen lässt.</translation>
    </message>
    <message>
        <location filename="../src/sound/mixing/SoundVoice.cpp"/>
        <source>A sound has no place before its start.</source>
        <translation>Vor dem Anfang eines Tons gibt es keine Stelle.</translation>
    </message>
    <message>
        <location filename="../src/sound/workers/ServeSounds.cpp"/>
        <source>There is not enough memory for the sound.</source>
        <translation>Für den Ton reicht der Speicher nicht.</translation>
    </message>
    <message>
        <location filename="../src/sound/workers/SoundsLocked.cpp"/>
        <source>The sound cannot be played: it brings its reader down.</source>
        <translation>Der Ton lässt sich nicht abspielen: Er bringt seinen Leser zum Absturz.</translation>
    </message>
    <message>
        <location filename="../src/sound/workers/SoundsLocked.cpp"/>
        <source>The sound cannot be played: it takes too long to be read.</source>
        <translation>Der Ton lässt sich nicht abspielen: Ihn zu lesen dauert zu lange.</translation>
    </message>
    <message>
        <location filename="../src/sound/workers/SoundsLocked.cpp"/>
        <source>The sound cannot be played: it tried to do what no sound may.</source>
        <translation>Der Ton lässt sich nicht abspielen: Er hat versucht, was kein Ton darf.</translation>
    </message>
    <message>
        <location filename="../src/sound/workers/SoundsLocked.cpp"/>
        <source>The sound has brought its reader down three times and is not tried again before the program is started anew.</source>
        <translation>Der Ton hat seinen Leser dreimal zum Absturz gebracht und wird erst nach einem Neustart des Programms wieder versucht.</translation>
    </message>
    <message>
        <location filename="../src/support/Grouped.cpp"/>
        <source>%1 bytes</source>
        <translation>%1 Bytes</translation>
    </message>
    <message>
        <location filename="../src/support/MediaTypes.cpp"/>
        <source>AIFF Audio Files</source>
        <translation>AIFF-Tondateien</translation>
    </message>
    <message>
        <location filename="../src/support/MediaTypes.cpp"/>
        <source>AVIF Images</source>
        <translation>AVIF-Bilder</translation>
    </message>
    <message>
        <location filename="../src/support/MediaTypes.cpp"/>
        <source>All Graphics Files|</source>
        <translation>Alle Bilddateien|</translation>
    </message>
    <message>
        <location filename="../src/support/MediaTypes.cpp"/>
        <source>All Sound Files|</source>
        <translation>Alle Tondateien|</translation>
    </message>
    <message>
        <location filename="../src/support/MediaTypes.cpp"/>
        <source>FLAC Audio Files</source>
        <translation>FLAC-Tondateien</translation>
    </message>
    <message>
        <location filename="../src/support/MediaTypes.cpp"/>
        <source>GIF Images</source>
        <translation>GIF-Bilder</translation>
    </message>
    <message>
        <location filename="../src/support/MediaTypes.cpp"/>
        <source>HEIC Images</source>
        <translation>HEIC-Bilder</translation>
    </message>
    <message>
        <location filename="../src/support/MediaTypes.cpp"/>
        <source>JPEG 2000 Images</source>
        <translation>JPEG-2000-Bilder</translation>
    </message>
    <message>
        <location filename="../src/support/MediaTypes.cpp"/>
        <source>JPEG Images</source>
        <translation>JPEG-Bilder</translation>
    </message>
    <message>
        <location filename="../src/support/MediaTypes.cpp"/>
        <source>Kodak (tm) PhotoCD Images</source>
        <translation>Kodak-(tm)-PhotoCD-Bilder</translation>
    </message>
    <message>
        <location filename="../src/support/MediaTypes.cpp"/>
        <source>MP3 Audio Files</source>
        <translation>MP3-Tondateien</translation>
    </message>
    <message>
        <location filename="../src/support/MediaTypes.cpp"/>
        <source>Multi-Picture Images</source>
        <translation>Mehrfachbilder</translation>
    </message>
    <message>
        <location filename="../src/support/MediaTypes.cpp"/>
        <source>Ogg Audio Files</source>
        <translation>Ogg-Tondateien</translation>
    </message>
    <message>
        <location filename="../src/support/MediaTypes.cpp"/>
        <source>Photoshop Images</source>
        <translation>Photoshop-Bilder</translation>
    </message>
    <message>
        <location filename="../src/support/MediaTypes.cpp"/>
        <source>Portable Network Graphic Images</source>
        <translation>Portable-Network-Graphic-Bilder</translation>
    </message>
    <message>
        <location filename="../src/support/MediaTypes.cpp"/>
        <source>TLA Images</source>
        <translation>TLA-Bilder</translation>
    </message>
    <message>
        <location filename="../src/support/MediaTypes.cpp"/>
        <source>Tagged Image Files</source>
        <translation>Tagged-Image-Dateien</translation>
    </message>
    <message>
        <location filename="../src/support/MediaTypes.cpp"/>
        <source>Truevision Targa Images</source>
        <translation>Truevision-Targa-Bilder</translation>
    </message>
    <message>
        <location filename="../src/support/MediaTypes.cpp"/>
        <source>Wave Audio Files</source>
        <translation>Wave-Tondateien</translation>
    </message>
    <message>
        <location filename="../src/support/MediaTypes.cpp"/>
        <source>WebP Images</source>
        <translation>WebP-Bilder</translation>
    </message>
    <message>
        <location filename="../src/support/MediaTypes.cpp"/>
        <source>Windows Bitmap Images</source>
        <translation>Windows-Bitmap-Bilder</translation>
    </message>
    <message>
        <location filename="../src/support/MediaTypes.cpp"/>
        <source>Windows Enhanced Meta Files</source>
        <translation>Erweiterte Windows-Metadateien</translation>
    </message>
    <message>
        <location filename="../src/support/MediaTypes.cpp"/>
        <source>Windows Meta Files</source>
        <translation>Windows-Metadateien</translation>
    </message>
    <message>
        <location filename="../src/support/MediaTypes.cpp"/>
        <source>Wireless Bitmap Images</source>
        <translation>Wireless-Bitmap-Bilder</translation>
    </message>
    <message>
        <location filename="../src/support/MediaTypes.cpp"/>
        <source>ZSoft PaintBrush Images</source>
        <translation>ZSoft-PaintBrush-Bilder</translation>
    </message>
    <message>
        <location filename="../src/support/ReasonOf.cpp"/>
        <source>There is not enough memory to do this.</source>
        <translation>Dafür reicht der Speicher nicht.</translation>
    </message>
    <message>
        <location filename="../src/support/files/CheckSums.cpp"/>
        <source>A file of this name cannot stand in a list of check sums.</source>
        <translation>Eine Datei dieses Namens kann nicht in einer Liste von Prüfsummen stehen.</translation>
    </message>
    <message>
        <location filename="../src/support/files/CheckSums.cpp"/>
        <source>Line %1 cannot be understood.</source>
        <translation>Zeile %1 ist unverständlich.</translation>
    </message>
    <message>
        <location filename="../src/support/files/CheckSums.cpp"/>
        <source>The directory cannot be read: %1.</source>
        <translation>Der Ordner ist nicht lesbar: %1.</translation>
    </message>
    <message>
        <location filename="../src/support/files/CheckSums.cpp"/>
        <source>The list of check sums is empty.</source>
        <translation>Die Liste der Prüfsummen ist leer.</translation>
    </message>
    <message>
        <location filename="../src/support/files/FileInTheMaking.cpp"/>
        <source>The file cannot be written. (%1)</source>
        <translation>Die Datei lässt sich nicht schreiben. (%1)</translation>
    </message>
    <message>
        <location filename="../src/support/files/FileInTheMaking.cpp"/>
        <source>The file is being made by another window or program.</source>
        <translation>Die Datei wird gerade von einem anderen Fenster oder Programm geschrieben.</translation>
    </message>
    <message>
        <location filename="../src/support/files/FileInTheMaking.cpp"/>
        <source>There is no such place in it.</source>
        <translation>Diese Stelle gibt es darin nicht.</translation>
    </message>
    <message>
        <location filename="../src/support/files/modHostFiles.cpp"/>
        <source>The file cannot be read: it is no ordinary file.</source>
        <translation>Die Datei ist nicht lesbar: Sie ist keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <location filename="../src/support/files/modHostFilesAccess.cpp"/>
        <source>The file is read-only, and that cannot be changed. (%1)</source>
        <translation>Die Datei ist schreibgeschützt, und das lässt sich nicht ändern. (%1)</translation>
    </message>
    <message>
        <location filename="../src/support/files/modHostFilesCopy.cpp"/>
        <source>The file cannot be read: it has become shorter.</source>
        <translation>Die Datei ist nicht lesbar: Sie ist kürzer geworden.</translation>
    </message>
    <message>
        <location filename="../src/support/files/modHostFilesCopy.cpp"/>
        <source>The file cannot be written: %1.</source>
        <translation>Die Datei lässt sich nicht schreiben: %1.</translation>
    </message>
    <message>
        <location filename="../src/support/files/modHostFilesCopy.cpp"/>
        <source>What was copied cannot be brought to the disk: %1.</source>
        <translation>Das Kopierte lässt sich nicht auf die Festplatte bringen: %1.</translation>
    </message>
    <message>
        <location filename="../src/support/files/modHostFilesWrite.cpp"/>
        <source>No temporary directory can be made.</source>
        <translation>Es lässt sich kein vorläufiger Ordner anlegen.</translation>
    </message>
    <message>
        <location filename="../src/support/files/modHostFilesWrite.cpp"/>
        <source>The directory cannot be made.</source>
        <translation>Der Ordner lässt sich nicht anlegen.</translation>
    </message>
    <message>
        <location filename="../src/support/files/modHostFilesWrite.cpp"/>
        <source>The file cannot be deleted.</source>
        <translation>Die Datei lässt sich nicht löschen.</translation>
    </message>
    <message>
        <location filename="../src/support/files/modHostFilesWrite.cpp"/>
        <source>The file cannot be made read-only.</source>
        <translation>Die Datei lässt sich nicht schreibschützen.</translation>
    </message>
    <message>
        <location filename="../src/support/files/modHostFilesWrite.cpp"/>
        <source>The file cannot be renamed.</source>
        <translation>Die Datei lässt sich nicht umbenennen.</translation>
    </message>
    <message>
        <location filename="../src/support/files/modHostFilesWrite.cpp"/>
        <source>The file cannot be written.</source>
        <translation>Die Datei lässt sich nicht schreiben.</translation>
    </message>
    <message>
        <location filename="../src/support/files/modHostFilesWrite.cpp"/>
        <source>The names cannot be brought to the disk.</source>
        <translation>Die Namen lassen sich nicht auf die Festplatte bringen.</translation>
    </message>
    <message>
        <location filename="../src/support/files/modHostFilesWrite.cpp"/>
        <source>no space left on device</source>
        <translation>kein Platz mehr auf dem Gerät</translation>
    </message>
    <message>
        <location filename="../src/support/locked/LockWords.cpp"/>
        <source>Foreign pictures and sounds are read in a locked room, with fewer locks than this program knows: nebctl sandbox lists them.</source>
        <translation>Fremde Bilder und Töne werden in einem verschlossenen Raum gelesen, mit weniger Riegeln, als dieses Programm kennt: „nebctl sandbox“ zählt sie auf.</translation>
    </message>
    <message>
        <location filename="../src/support/locked/LockWords.cpp"/>
        <source>Foreign pictures and sounds are read in a locked room.</source>
        <translation>Fremde Bilder und Töne werden in einem verschlossenen Raum gelesen.</translation>
    </message>
    <message>
        <location filename="../src/support/locked/LockWords.cpp"/>
        <source>This system cannot lock the room in which foreign pictures and sounds are read: nebctl sandbox tells what is missing.</source>
        <translation>Dieses System kann den Raum, in dem fremde Bilder und Töne gelesen werden, nicht verschließen: „nebctl sandbox“ sagt, was fehlt.</translation>
    </message>
    <message>
        <location filename="../src/support/locked/LockedProcess.cpp"/>
        <source>No picture or sound can be read: a part of the program does not get ready.</source>
        <translation>Kein Bild und kein Ton ist lesbar: Ein Teil des Programms wird nicht bereit.</translation>
    </message>
    <message>
        <location filename="../src/support/locked/LockedProcess.cpp"/>
        <source>No picture or sound can be read: a part of the program is missing.</source>
        <translation>Kein Bild und kein Ton ist lesbar: Ein Teil des Programms fehlt.</translation>
    </message>
    <message>
        <location filename="../src/support/locked/LockedSpawn.cpp"/>
        <source>No picture or sound can be read: a part of the program cannot be started. (%1)</source>
        <translation>Kein Bild und kein Ton ist lesbar: Ein Teil des Programms lässt sich nicht starten. (%1)</translation>
    </message>
    <message>
        <location filename="../src/support/locked/SharedMemory.cpp"/>
        <source>No picture or sound can be read: this system gives no memory that two processes can share.</source>
        <translation>Kein Bild und kein Ton ist lesbar: Dieses System gibt keinen Speicher her, den zwei Prozesse teilen können.</translation>
    </message>
    <message>
        <location filename="../src/support/modDEValidation.cpp"/>
        <source>&apos;%1&apos; is not a Numeric Digit.</source>
        <translation>„%1“ ist keine Ziffer.</translation>
    </message>
    <message>
        <location filename="../src/support/work/TimeLeft.cpp"/>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <location filename="../src/support/work/TimeLeft.cpp"/>
        <source>%1 hours</source>
        <translation>%1 Stunden</translation>
    </message>
    <message>
        <location filename="../src/support/work/TimeLeft.cpp"/>
        <source>%1 minutes</source>
        <translation>%1 Minuten</translation>
    </message>
    <message>
        <location filename="../src/support/work/TimeLeft.cpp"/>
        <source>%1 seconds</source>
        <translation>%1 Sekunden</translation>
    </message>
    <message>
        <location filename="../src/support/work/TimeLeft.cpp"/>
        <source>A few seconds left</source>
        <translation>Noch einige Sekunden</translation>
    </message>
    <message>
        <location filename="../src/support/work/TimeLeft.cpp"/>
        <source>About %1 left</source>
        <translation>Noch etwa %1</translation>
    </message>
    <message>
        <location filename="../src/support/work/TimeLeft.cpp"/>
        <source>a minute</source>
        <translation>eine Minute</translation>
    </message>
    <message>
        <location filename="../src/support/work/TimeLeft.cpp"/>
        <source>an hour</source>
        <translation>eine Stunde</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/AlbumForm.cpp"/>
        <source>Missing User Input</source>
        <translation>Eingabe fehlt</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/AlbumForm.cpp"/>
        <source>The database is read-only:
its albums cannot be changed.</source>
        <translation>Die Datenbank ist schreibgeschützt:
Ihre Alben lassen sich nicht ändern.</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/AlbumForm.cpp"/>
        <source>There are no albums yet.
New Album in the menu Album makes one.</source>
        <translation>Es gibt noch keine Alben.
„Neues Album“ im Menü Album legt eines an.</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/AlbumForm.cpp"/>
        <source>You must first select an Album.</source>
        <translation>Bitte wählen Sie zuerst ein Album.</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmAlbumDelete.ui"/>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmAlbumDelete.ui"/>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmAlbumDelete.ui"/>
        <source>Album</source>
        <translation>Album</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmAlbumDelete.ui"/>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmAlbumDelete.ui"/>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmAlbumDelete.ui"/>
        <source>Delete the album with all its slides and slide shows</source>
        <translation>Das Album mit allen Dias und Diashows löschen</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmAlbumDelete.ui"/>
        <source>The album to be deleted</source>
        <translation>Das Album, das gelöscht werden soll</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmAlbumRename.cpp"/>
        <source>New %1 Name</source>
        <translation>Neuer Name (%1)</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmAlbumRename.cpp"/>
        <source>Rename %1</source>
        <translation>%1 umbenennen</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmAlbumRename.ui"/>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmAlbumRename.ui"/>
        <source>Give the album the new name</source>
        <translation>Dem Album den neuen Namen geben</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmAlbumRename.ui"/>
        <source>Leave the name as it is</source>
        <translation>Den Namen lassen, wie er ist</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmAlbumRename.ui"/>
        <source>New Album Name</source>
        <translation>Neuer Name des Albums</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmAlbumRename.ui"/>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmAlbumRename.ui"/>
        <source>The album that gets another name</source>
        <translation>Das Album, das einen anderen Namen bekommt</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmAlbumRename.ui"/>
        <source>The name that the album is to have</source>
        <translation>Der Name, den das Album haben soll</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmCheckPictures.cpp"/>
        <source>%1 albums had no check sums and could not be compared; they are kept from now on.</source>
        <translation>%1 Alben hatten keine Prüfsummen und konnten nicht verglichen werden; von jetzt an werden sie geführt.</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmCheckPictures.cpp"/>
        <source>%1 albums have no check sums and could not be compared.</source>
        <translation>%1 Alben haben keine Prüfsummen und konnten nicht verglichen werden.</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmCheckPictures.cpp"/>
        <source>%1 files are not as they should be.</source>
        <translation>%1 Dateien sind nicht so, wie sie sein sollten.</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmCheckPictures.cpp"/>
        <source>All is well: %1 files are as they were stored.</source>
        <translation>Alles in Ordnung: %1 Dateien sind so, wie sie gespeichert wurden.</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmCheckPictures.cpp"/>
        <source>All is well: the one file is as it was stored.</source>
        <translation>Alles in Ordnung: Die eine Datei ist so, wie sie gespeichert wurde.</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmCheckPictures.cpp"/>
        <source>Nothing was found until then.</source>
        <translation>Bis dahin wurde nichts gefunden.</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmCheckPictures.cpp"/>
        <source>One album had no check sums and could not be compared; they are kept from now on.</source>
        <translation>Ein Album hatte keine Prüfsummen und konnte nicht verglichen werden; von jetzt an werden sie geführt.</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmCheckPictures.cpp"/>
        <source>One album has no check sums and could not be compared.</source>
        <translation>Ein Album hat keine Prüfsummen und konnte nicht verglichen werden.</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmCheckPictures.cpp"/>
        <source>One file is not as it should be.</source>
        <translation>Eine Datei ist nicht so, wie sie sein sollte.</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmCheckPictures.cpp"/>
        <source>Stopped; not all was checked.</source>
        <translation>Angehalten; nicht alles wurde geprüft.</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmCheckPictures.cpp"/>
        <source>Stopping ...</source>
        <translation>Wird angehalten ...</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmCheckPictures.cpp"/>
        <source>The check could not be finished.</source>
        <translation>Die Prüfung konnte nicht abgeschlossen werden.</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmCheckPictures.ui"/>
        <source>&amp;Stop</source>
        <translation>St&amp;opp</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmCheckPictures.ui"/>
        <source>Check All Pictures</source>
        <translation>Alle Bilder prüfen</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmCheckPictures.ui"/>
        <source>Co&amp;py the List</source>
        <translation>Liste &amp;kopieren</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmCheckPictures.ui"/>
        <source>Copy the list</source>
        <translation>Liste kopieren</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmCheckPictures.ui"/>
        <source>Files that have changed, are empty or missing would be listed here.</source>
        <translation>Hier stünden Dateien, die verändert oder leer sind oder fehlen.</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmCheckPictures.ui"/>
        <source>Files that have changed, are empty, missing or unreadable, or belong to no slide</source>
        <translation>Dateien, die verändert, leer oder nicht lesbar sind, fehlen oder zu keinem Dia gehören</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmCheckPictures.ui"/>
        <source>How much of all pictures and sounds has been read</source>
        <translation>Wie viel von allen Bildern und Tönen schon gelesen ist</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmCheckPictures.ui"/>
        <source>Looking at what is there ...</source>
        <translation>Es wird nachgesehen, was da ist ...</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmCheckPictures.ui"/>
        <source>Put the list on the clipboard</source>
        <translation>Die Liste in die Zwischenablage legen</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmCheckPictures.ui"/>
        <source>Stop the check; what was found until then stays here (Esc)</source>
        <translation>Die Prüfung anhalten; was bis dahin gefunden ist, bleibt stehen (Esc)</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmCheckPictures.ui"/>
        <source>What was &amp;found</source>
        <translation>&amp;Gefunden</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmCheckPictures.ui"/>
        <source>What was found</source>
        <translation>Gefunden</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmDamage.cpp"/>
        <source>

All albums, slides and shows are there. Going on loses no more than letters of captions and names, and takes as many as it can from the earlier albums.</source>
        <translation>

Alle Alben, Dias und Diashows sind da. Beim Weitermachen gehen nur Buchstaben von Bildtexten und Namen verloren, und so viele wie möglich kommen aus den früheren Alben zurück.</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmDamage.cpp"/>
        <source>

Changes of an interrupted session do not go with these albums. They are kept here:
%1</source>
        <translation>

Änderungen einer unterbrochenen Sitzung passen nicht zu diesen Alben. Sie sind hier aufgehoben:
%1</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmDamage.cpp"/>
        <source>

What is left now: %1.</source>
        <translation>

Was jetzt noch da ist: %1.</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmDamage.cpp"/>
        <source>That did not succeed. No file is lost.

%1</source>
        <translation>Das ist nicht gelungen. Keine Datei ist verloren.

%1</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmDamage.cpp"/>
        <source>The albums are as they were saved on %1.</source>
        <translation>Die Alben sind so, wie sie am %1 gespeichert wurden.</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmDamage.cpp"/>
        <source>The albums in %1 are damaged. Nothing has been changed.</source>
        <translation>Die Alben in %1 sind beschädigt. Nichts wurde verändert.</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmDamage.cpp"/>
        <source>The files of before are kept here:
%1</source>
        <translation>Die bisherigen Dateien sind hier aufgehoben:
%1</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmDamage.cpp"/>
        <source>The last good albums were saved on %1: %2. What has been changed since then would have to be done again.</source>
        <translation>Die letzten heilen Alben wurden am %1 gespeichert: %2. Was seither geändert wurde, müsste noch einmal getan werden.</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmDamage.cpp"/>
        <source>The program goes on with what is left of the albums.</source>
        <translation>Das Programm macht mit dem weiter, was von den Alben übrig ist.</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmDamage.cpp"/>
        <source>There are no earlier albums that could be brought back. You can go on with what is left.</source>
        <translation>Es gibt keine früheren Alben, die sich zurückholen ließen. Sie können mit dem weitermachen, was übrig ist.</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmDamage.cpp"/>
        <source>albums</source>
        <translation>Alben</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmDamage.cpp"/>
        <source>slide shows</source>
        <translation>Diashows</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmDamage.cpp"/>
        <source>slides</source>
        <translation>Dias</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmDamage.ui"/>
        <source>&amp;End</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmDamage.ui"/>
        <source>&amp;Go On With What Is Left</source>
        <translation>&amp;Weitermachen mit dem Rest</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmDamage.ui"/>
        <source>&amp;Restore the Last Good Albums</source>
        <translation>Letzte &amp;heile Alben zurückholen</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmDamage.ui"/>
        <source>Bring the last good albums back; the present files are kept</source>
        <translation>Die letzten heilen Alben zurückholen; die jetzigen Dateien bleiben aufgehoben</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmDamage.ui"/>
        <source>End</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmDamage.ui"/>
        <source>End the program and leave everything as it is</source>
        <translation>Das Programm beenden und alles lassen, wie es ist</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmDamage.ui"/>
        <source>Go On With What Is Left</source>
        <translation>Weitermachen mit dem Rest</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmDamage.ui"/>
        <source>Restore the Last Good Albums</source>
        <translation>Letzte heile Alben zurückholen</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmDamage.ui"/>
        <source>The albums are damaged. Nothing has been changed.</source>
        <translation>Die Alben sind beschädigt. Nichts wurde verändert.</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmDamage.ui"/>
        <source>There are no earlier albums.</source>
        <translation>Es gibt keine früheren Alben.</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmDamage.ui"/>
        <source>Use all records that can be read; the present files are kept</source>
        <translation>Alle lesbaren Datensätze verwenden; die jetzigen Dateien bleiben aufgehoben</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmDamage.ui"/>
        <source>What is &amp;wrong</source>
        <translation>Was nicht &amp;stimmt</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmDamage.ui"/>
        <source>What is wrong</source>
        <translation>Was nicht stimmt</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmDamage.ui"/>
        <source>What was found in the files of the albums</source>
        <translation>Was in den Dateien der Alben gefunden wurde</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmGetObjectName.cpp"/>
        <source>%1 Name</source>
        <translation>Name (%1)</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmGetObjectName.cpp"/>
        <source>Complete the %1 Name Entry.</source>
        <translation>Diesen Namen nehmen (%1).</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmGetObjectName.cpp"/>
        <source>Enter the %1 Name.</source>
        <translation>Geben Sie den Namen ein (%1).</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmGetObjectName.cpp"/>
        <source>Get %1 Name</source>
        <translation>Name (%1)</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmGetObjectName.cpp"/>
        <source>Object</source>
        <translation>Eintrag</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmGetObjectName.ui"/>
        <source>Complete the Object Name Entry.</source>
        <translation>Diesen Namen nehmen.</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmGetObjectName.ui"/>
        <source>Enter no name</source>
        <translation>Keinen Namen eingeben</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmGetObjectName.ui"/>
        <source>Enter the Object Name.</source>
        <translation>Geben Sie den Namen ein.</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmGetObjectName.ui"/>
        <source>Get Object Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmGetObjectName.ui"/>
        <source>Object Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmRestore.cpp"/>
        <source>%1 pictures or sounds of them are missing by now.</source>
        <translation>%1 Bilder oder Töne davon fehlen inzwischen.</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmRestore.cpp"/>
        <source>1 picture or sound of them is missing by now.</source>
        <translation>1 Bild oder Ton davon fehlt inzwischen.</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmRestore.cpp"/>
        <source>Albums</source>
        <translation>Alben</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmRestore.cpp"/>
        <source>Choose when the albums were saved that you want back.</source>
        <translation>Wählen Sie, wann die Alben gespeichert wurden, die Sie zurückhaben möchten.</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmRestore.cpp"/>
        <source>Do you want all albums and slide shows back as they were saved on %1?
Those of now are kept among the earlier ones. All windows are closed first.</source>
        <translation>Möchten Sie alle Alben und Diashows so zurück, wie sie am %1 gespeichert wurden?
Die jetzigen werden unter den früheren aufgehoben. Vorher schließen sich alle Fenster.</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmRestore.cpp"/>
        <source>Earlier albums are listed here once the program has kept some.</source>
        <translation>Frühere Alben stehen hier, sobald das Programm welche aufgehoben hat.</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmRestore.cpp"/>
        <source>Nothing was restored: a window stayed open.</source>
        <translation>Nichts wurde zurückgeholt: Ein Fenster blieb offen.</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmRestore.cpp"/>
        <source>Operation Completed</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmRestore.cpp"/>
        <source>Restore Confirmation</source>
        <translation>Wirklich zurückholen?</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmRestore.cpp"/>
        <source>Saved</source>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmRestore.cpp"/>
        <source>Slide shows</source>
        <translation>Diashows</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmRestore.cpp"/>
        <source>Slides</source>
        <translation>Dias</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmRestore.cpp"/>
        <source>The albums are back, but they are not all written yet. The end of the program, or its next start, will do it.

%1</source>
        <translation>Die Alben sind zurück, aber noch nicht alle geschrieben. Das geschieht am Ende des Programms oder bei seinem nächsten Start.

%1</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmRestore.cpp"/>
        <source>The albums could not be restored. Nothing has changed.

%1</source>
        <translation>Die Alben konnten nicht zurückgeholt werden. Nichts hat sich verändert.

%1</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmRestore.cpp"/>
        <source>The file of these albums is damaged or gone.</source>
        <translation>Die Datei dieser Alben ist beschädigt oder verschwunden.</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmRestore.cpp"/>
        <source>There are no earlier albums yet. Whenever the program ends and something has been changed, the albums of before are kept.</source>
        <translation>Es gibt noch keine früheren Alben. Immer wenn das Programm endet und etwas geändert wurde, werden die bisherigen Alben aufgehoben.</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmRestore.ui"/>
        <source>&amp;Restore...</source>
        <translation>&amp;Zurückholen...</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmRestore.ui"/>
        <source>All &amp;albums as they were</source>
        <translation>Alle Al&amp;ben, wie sie waren</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmRestore.ui"/>
        <source>All albums as they were</source>
        <translation>Alle Alben, wie sie waren</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmRestore.ui"/>
        <source>Make the chosen albums the present ones; these are kept as well</source>
        <translation>Die gewählten Alben zu den jetzigen machen; diese werden ebenfalls aufgehoben</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmRestore.ui"/>
        <source>Restore</source>
        <translation>Zurückholen</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmRestore.ui"/>
        <source>Restore Earlier Albums</source>
        <translation>Frühere Alben zurückholen</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmRestore.ui"/>
        <source>What comes back, what goes, and what is missing by now</source>
        <translation>Was zurückkommt, was verschwindet und was inzwischen fehlt</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmRestore.ui"/>
        <source>What would be &amp;different from now</source>
        <translation>Was an&amp;ders wäre als jetzt</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmRestore.ui"/>
        <source>What would be different from now</source>
        <translation>Was anders wäre als jetzt</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/frmRestore.ui"/>
        <source>When the albums were saved that were kept, the newest first</source>
        <translation>Wann die aufgehobenen Alben gespeichert wurden, die neuesten zuerst</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/modAlbumNames.cpp"/>
        <source>Are you sure you want to delete the selected Album?
If you proceed all the slides and slide shows within
will be lost.</source>
        <translation>Möchten Sie das gewählte Album wirklich löschen?
Alle Dias und Diashows darin gehen dann verloren.</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/modAlbumNames.cpp"/>
        <source>Delete Confirmation</source>
        <translation>Wirklich löschen?</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/modAlbumNames.cpp"/>
        <source>You must enter a %1 name.</source>
        <translation>Bitte geben Sie einen Namen ein (%1).</translation>
    </message>
    <message>
        <location filename="../src/windows/albums/modAlbumNames.cpp"/>
        <source>You must enter an %1 name.</source>
        <translation>Bitte geben Sie einen Namen ein (%1).</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/TrackList.cpp"/>
        <source>A track that is over before its last slide begins anew</source>
        <translation>Eine Spur, die vor ihrem letzten Dia zu Ende ist, beginnt von vorn</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/TrackList.cpp"/>
        <source>Artist and title, where the file names them</source>
        <translation>Interpret und Titel, wo die Datei sie nennt</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/TrackList.cpp"/>
        <source>Choose a Sound Track</source>
        <translation>Tonspur wählen</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/TrackList.cpp"/>
        <source>End Slide
Seq</source>
        <translation>Letztes
Dia</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/TrackList.cpp"/>
        <source>Fade On
Last Slide</source>
        <translation>Leiser beim
letzten Dia</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/TrackList.cpp"/>
        <source>Fit To
Song</source>
        <translation>An Lied
anpassen</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/TrackList.cpp"/>
        <source>Hear</source>
        <translation>Anhören</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/TrackList.cpp"/>
        <source>Its slides stay for so long that they and the track end together</source>
        <translation>Ihre Dias bleiben so lange stehen, dass sie mit der Spur zusammen enden</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/TrackList.cpp"/>
        <source>No.</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/TrackList.cpp"/>
        <source>Play</source>
        <comment>a track</comment>
        <translation>Hören</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/TrackList.cpp"/>
        <source>Play lets the track be heard here; Stop ends it</source>
        <translation>„Abspielen“ lässt die Spur hier hören, „Stopp“ beendet sie</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/TrackList.cpp"/>
        <source>Repeat</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/TrackList.cpp"/>
        <source>Song</source>
        <translation>Lied</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/TrackList.cpp"/>
        <source>Sound Track
File Location</source>
        <translation>Datei der
Tonspur</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/TrackList.cpp"/>
        <source>Start Slide
Seq</source>
        <translation>Erstes
Dia</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/TrackList.cpp"/>
        <source>The file of the sound; the ... button chooses one</source>
        <translation>Die Tondatei; die Schaltfläche ... wählt eine</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/TrackList.cpp"/>
        <source>The number of the track; tracks are heard in this order</source>
        <translation>Die Nummer der Spur; in dieser Reihenfolge sind die Spuren zu hören</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/TrackList.cpp"/>
        <source>The track grows quieter while its last slide is shown</source>
        <translation>Die Spur wird leiser, während ihr letztes Dia zu sehen ist</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/TrackList.cpp"/>
        <source>With which slide of the show the track begins, by its number in the show</source>
        <translation>Mit welchem Dia der Diashow die Spur beginnt, nach seiner Nummer in der Diashow</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/TrackList.cpp"/>
        <source>With which slide of the show the track ends</source>
        <translation>Mit welchem Dia der Diashow die Spur endet</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/TrackPlayer.cpp"/>
        <source>There is no sound on this machine.</source>
        <translation>Auf diesem Rechner gibt es keinen Ton.</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/TwoLists.cpp"/>
        <source>All slides of the album</source>
        <translation>Alle Dias des Albums</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/TwoLists.cpp"/>
        <source>Choose an album above to see its slides here.</source>
        <translation>Wählen Sie oben ein Album, um hier seine Dias zu sehen.</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/TwoLists.cpp"/>
        <source>Choose an album and a slide show above to see its slides here.</source>
        <translation>Wählen Sie oben ein Album und eine Diashow, um hier ihre Dias zu sehen.</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/TwoLists.cpp"/>
        <source>Every slide of the album is in the show.</source>
        <translation>Alle Dias des Albums sind in der Diashow.</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/TwoLists.cpp"/>
        <source>Move slides here:
the show plays them in this order.</source>
        <translation>Bringen Sie Dias hierher:
Die Diashow zeigt sie in dieser Reihenfolge.</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/TwoLists.cpp"/>
        <source>There is no album yet.
Make one with New Album in the Album menu.</source>
        <translation>Es gibt noch kein Album.
Legen Sie eines mit „Neues Album“ im Menü Album an.</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/TwoLists.cpp"/>
        <source>This album has no slides.
Add some with Slide Manager in the Album menu.</source>
        <translation>Dieses Album hat keine Dias.
Fügen Sie welche mit der Dia-Verwaltung im Menü Album hinzu.</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.cpp"/>
        <source>Are you sure you want to discard the changes to the current slide show?</source>
        <translation>Möchten Sie die Änderungen an dieser Diashow wirklich verwerfen?</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.cpp"/>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.cpp"/>
        <source>Choose how slide shows are played</source>
        <translation>Wählen, wie Diashows gespielt werden</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.cpp"/>
        <source>Delete Successful</source>
        <translation>Gelöscht</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.cpp"/>
        <source>Discard Changes Confirmation</source>
        <translation>Änderungen verwerfen?</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.cpp"/>
        <source>Exit</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.cpp"/>
        <source>Film</source>
        <translation>Film</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.cpp"/>
        <source>Make a video file of the show as it was last saved</source>
        <translation>Aus der Diashow, wie sie zuletzt gespeichert wurde, eine Videodatei machen</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.cpp"/>
        <source>Manual</source>
        <translation>Von Hand</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.cpp"/>
        <source>Play the saved show from its first slide; with Shift from the slide in hand</source>
        <translation>Die gespeicherte Diashow vom ersten Dia an abspielen; mit Umschalt vom gewählten Dia an</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.cpp"/>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.cpp"/>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.cpp"/>
        <source>Print the slide show as it was last saved</source>
        <translation>Die Diashow drucken, wie sie zuletzt gespeichert wurde</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.cpp"/>
        <source>Rehearse</source>
        <translation>Probelauf</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.cpp"/>
        <source>Save As New</source>
        <translation>Als neue speichern</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.cpp"/>
        <source>Save Successful</source>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.cpp"/>
        <source>Save as a new slide show, under another name</source>
        <translation>Als neue Diashow unter einem anderen Namen speichern</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.cpp"/>
        <source>Slide Show Deleted Successfully.</source>
        <translation>Die Diashow wurde gelöscht.</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.cpp"/>
        <source>Slide Show Saved Successfully.</source>
        <translation>Die Diashow wurde gespeichert.</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.cpp"/>
        <source>View</source>
        <translation>Ansehen</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.cpp"/>
        <source>What the saved show brings when, and what is wrong</source>
        <translation>Was in der gespeicherten Diashow wann kommt und was nicht stimmt</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.cpp"/>
        <source>You must first select a Slide Show to Rehearse.</source>
        <translation>Bitte wählen Sie zuerst eine Diashow für den Probelauf.</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.cpp"/>
        <source>You must first select a Slide Show to make a Film of.</source>
        <translation>Bitte wählen Sie zuerst eine Diashow, aus der ein Film werden soll.</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.cpp"/>
        <source>You must first select an album.</source>
        <translation>Bitte wählen Sie zuerst ein Album.</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.ui"/>
        <source>&amp;Cancel</source>
        <translation>Abb&amp;rechen</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.ui"/>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.ui"/>
        <source>Al&amp;bum</source>
        <translation>Al&amp;bum</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.ui"/>
        <source>Album Slides in the current Slide Show</source>
        <translation>Dias des Albums, die in der Diashow sind</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.ui"/>
        <source>Album slides not in the current Slide Show</source>
        <translation>Dias des Albums, die nicht in der Diashow sind</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.ui"/>
        <source>Automatic: each slide goes after its time. Manual: you press a key for the next</source>
        <translation>Automatisch: Jedes Dia geht nach seiner Zeit. Von Hand: Sie drücken für das nächste eine Taste</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.ui"/>
        <source>Begin a new slide show</source>
        <translation>Eine neue Diashow beginnen</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.ui"/>
        <source>Choose a slide show</source>
        <translation>Diashow wählen</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.ui"/>
        <source>Choose an album</source>
        <translation>Album wählen</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.ui"/>
        <source>Cl&amp;ose</source>
        <translation>Schlie&amp;ßen</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.ui"/>
        <source>Ctrl+Shift+F</source>
        <translation>Ctrl+Shift+F</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.ui"/>
        <source>Delete the slide show</source>
        <translation>Die Diashow löschen</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.ui"/>
        <source>Fit All Son&amp;gs</source>
        <translation>Auf Lieder &amp;verteilen</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.ui"/>
        <source>Fit all</source>
        <translation>Auf Lieder verteilen</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.ui"/>
        <source>Go back to the slide show as it was last saved</source>
        <translation>Zurück zur Diashow, wie sie zuletzt gespeichert wurde</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.ui"/>
        <source>Move all left</source>
        <translation>Alle nach links</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.ui"/>
        <source>Move all right</source>
        <translation>Alle nach rechts</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.ui"/>
        <source>Move all slides into the show (Ctrl+Shift+Right)</source>
        <translation>Alle Dias in die Diashow bringen (Strg+Umschalt+Rechts)</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.ui"/>
        <source>Move down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.ui"/>
        <source>Move left</source>
        <translation>Nach links</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.ui"/>
        <source>Move right</source>
        <translation>Nach rechts</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.ui"/>
        <source>Move the selected slides into the show (Ctrl+Right)</source>
        <translation>Die gewählten Dias in die Diashow bringen (Strg+Rechts)</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.ui"/>
        <source>Move up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.ui"/>
        <source>Na&amp;me</source>
        <translation>Na&amp;me</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.ui"/>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.ui"/>
        <source>Name of the currently selected Slide Show</source>
        <translation>Name der gewählten Diashow</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.ui"/>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.ui"/>
        <source>P&amp;rogression</source>
        <translation>W&amp;echsel</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.ui"/>
        <source>Progression</source>
        <translation>Wechsel</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.ui"/>
        <source>Save the slide show</source>
        <translation>Die Diashow speichern</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.ui"/>
        <source>Show the current slide earlier (Alt+Up)</source>
        <translation>Das gewählte Dia früher zeigen (Alt+Auf)</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.ui"/>
        <source>Show the current slide later (Alt+Down)</source>
        <translation>Das gewählte Dia später zeigen (Alt+Ab)</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.ui"/>
        <source>Slid&amp;e show</source>
        <translation>Diash&amp;ow</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.ui"/>
        <source>Slide Show Manager</source>
        <translation>Diashow-Verwaltung</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.ui"/>
        <source>Slide show</source>
        <translation>Diashow</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.ui"/>
        <source>Slides in &amp;your show</source>
        <translation>D&amp;ias in Ihrer Diashow</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.ui"/>
        <source>Slides in the show</source>
        <translation>Dias in der Diashow</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.ui"/>
        <source>Slides no&amp;t in the show</source>
        <translation>Dias nich&amp;t in der Diashow</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.ui"/>
        <source>Slides not in the show</source>
        <translation>Dias nicht in der Diashow</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.ui"/>
        <source>Sound trac&amp;ks</source>
        <translation>Tons&amp;puren</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.ui"/>
        <source>Sound tracks</source>
        <translation>Tonspuren</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.ui"/>
        <source>Spread all slides of the show over the sound tracks, by their lengths, and fit them to the songs (Ctrl+Shift+F)</source>
        <translation>Alle Dias der Diashow nach der Länge der Tonspuren auf sie verteilen und an die Lieder anpassen (Strg+Umschalt+F)</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.ui"/>
        <source>Take all slides out of the show (Ctrl+Shift+Left)</source>
        <translation>Alle Dias aus der Diashow nehmen (Strg+Umschalt+Links)</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.ui"/>
        <source>Take the selected slides out of the show (Ctrl+Left, Del)</source>
        <translation>Die gewählten Dias aus der Diashow nehmen (Strg+Links, Entf)</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.ui"/>
        <source>The album whose slides are shown</source>
        <translation>Das Album, dessen Dias zu sehen sind</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.ui"/>
        <source>The slide show to edit, or a new one</source>
        <translation>Die Diashow, die bearbeitet wird, oder eine neue</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBM.ui"/>
        <source>The sounds of the show, each for a run of slides. Choose a file with the ... button or drop one on a row; Ctrl+Space lets the row be heard; Del empties the selected rows</source>
        <translation>Die Töne der Diashow, jeder für eine Folge von Dias. Wählen Sie eine Datei mit der Schaltfläche ..., oder ziehen Sie eine auf eine Zeile; Strg+Leertaste lässt die Zeile hören; Entf leert die gewählten Zeilen</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBMFollow.cpp"/>
        <source>&lt;NEW SLIDE SHOW&gt;</source>
        <translation>&lt;NEUE DIASHOW&gt;</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBMFollow.cpp"/>
        <source>Slide Show Manager - </source>
        <translation>Diashow-Verwaltung - </translation>
    </message>
    <message>
        <location filename="../src/windows/compose/frmSlideShowDBMFollow.cpp"/>
        <source>Stopped; the album is not shown.</source>
        <translation>Angehalten; das Album wird nicht gezeigt.</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/modFitAll.cpp"/>
        <source>Measuring Sound Tracks ...</source>
        <translation>Tonspuren werden gemessen ...</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/modFitAll.cpp"/>
        <source>Sound track %1 cannot be measured.
%2</source>
        <translation>Tonspur %1 lässt sich nicht messen.
%2</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/modFitAll.cpp"/>
        <source>Sound track %1 of %2</source>
        <translation>Tonspur %1 von %2</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/modFitAll.cpp"/>
        <source>Stopped; the sound tracks are as they were.</source>
        <translation>Angehalten; die Tonspuren sind, wie sie waren.</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/modFitAll.cpp"/>
        <source>The file does not answer.</source>
        <translation>Die Datei antwortet nicht.</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/modFitAll.cpp"/>
        <source>There is no sound in it.</source>
        <translation>Es ist kein Ton darin.</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/modShowManagers.cpp"/>
        <source>Are you sure you want to delete the selected slide show?</source>
        <translation>Möchten Sie die gewählte Diashow wirklich löschen?</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/modShowManagers.cpp"/>
        <source>Make a Film</source>
        <translation>Einen Film machen</translation>
    </message>
    <message>
        <location filename="../src/windows/compose/modShowManagers.cpp"/>
        <source>The changes to this slide show are not saved, and will not be in the film. Make it of the show as it was last saved?</source>
        <translation>Die Änderungen an dieser Diashow sind nicht gespeichert und kämen nicht in den Film. Soll er aus der Diashow entstehen, wie sie zuletzt gespeichert wurde?</translation>
    </message>
    <message>
        <location filename="../src/windows/disc/frmDiscFolder.cpp"/>
        <source>Album or slide show</source>
        <translation>Album oder Diashow</translation>
    </message>
    <message>
        <location filename="../src/windows/disc/frmDiscFolder.cpp"/>
        <source>Folder for the Disc</source>
        <translation>Ordner für den Datenträger</translation>
    </message>
    <message>
        <location filename="../src/windows/disc/frmDiscFolder.cpp"/>
        <source>Missing Directory Information</source>
        <translation>Ordner fehlt</translation>
    </message>
    <message>
        <location filename="../src/windows/disc/frmDiscFolder.cpp"/>
        <source>No Source Selected</source>
        <translation>Keine Quelle gewählt</translation>
    </message>
    <message>
        <location filename="../src/windows/disc/frmDiscFolder.cpp"/>
        <source>Stopped; nothing was written.</source>
        <translation>Angehalten; nichts wurde geschrieben.</translation>
    </message>
    <message>
        <location filename="../src/windows/disc/frmDiscFolder.cpp"/>
        <source>The folder
%1
is ready: %2, in %3 files of %4%5.

Whether it is still as it was written can be looked up at any time: by Check a Disc in the menu Import/Export, or in the folder by
sha256sum -c Sums.sha256</source>
        <translation>Der Ordner
%1
ist fertig: %2, in %3 Dateien mit %4%5.

Ob er noch so ist, wie er geschrieben wurde, lässt sich jederzeit nachsehen: mit „Datenträger prüfen“ im Menü Import/Export oder im Ordner mit
sha256sum -c Sums.sha256</translation>
    </message>
    <message>
        <location filename="../src/windows/disc/frmDiscFolder.cpp"/>
        <source>There are no albums yet. New Album in the menu Album makes one.</source>
        <translation>Es gibt noch keine Alben. „Neues Album“ im Menü Album legt eines an.</translation>
    </message>
    <message>
        <location filename="../src/windows/disc/frmDiscFolder.cpp"/>
        <source>Tick what is to be written. An album takes its slide shows along.</source>
        <translation>Kreuzen Sie an, was geschrieben werden soll. Ein Album nimmt seine Diashows mit.</translation>
    </message>
    <message>
        <location filename="../src/windows/disc/frmDiscFolder.cpp"/>
        <source>Writing ...</source>
        <translation>Wird geschrieben ...</translation>
    </message>
    <message>
        <location filename="../src/windows/disc/frmDiscFolder.cpp"/>
        <source>You must first name the folder to write to.</source>
        <translation>Bitte nennen Sie zuerst den Ordner, in den geschrieben werden soll.</translation>
    </message>
    <message>
        <location filename="../src/windows/disc/frmDiscFolder.cpp"/>
        <source>You must first select the albums or slide shows to write.</source>
        <translation>Bitte wählen Sie zuerst die Alben oder Diashows, die geschrieben werden sollen.</translation>
    </message>
    <message>
        <location filename="../src/windows/disc/frmDiscFolder.cpp"/>
        <source>Your albums and slide shows are listed here once you have made some.</source>
        <translation>Ihre Alben und Diashows stehen hier, sobald Sie welche angelegt haben.</translation>
    </message>
    <message>
        <location filename="../src/windows/disc/frmDiscFolder.ui"/>
        <source>A new or an empty folder; one can be dropped here</source>
        <translation>Ein neuer oder leerer Ordner; Sie können einen hierher ziehen</translation>
    </message>
    <message>
        <location filename="../src/windows/disc/frmDiscFolder.ui"/>
        <source>Al&amp;bums and slide shows</source>
        <translation>Al&amp;ben und Diashows</translation>
    </message>
    <message>
        <location filename="../src/windows/disc/frmDiscFolder.ui"/>
        <source>Albums and slide shows</source>
        <translation>Alben und Diashows</translation>
    </message>
    <message>
        <location filename="../src/windows/disc/frmDiscFolder.ui"/>
        <source>B&amp;rowse...</source>
        <translation>Durch&amp;suchen...</translation>
    </message>
    <message>
        <location filename="../src/windows/disc/frmDiscFolder.ui"/>
        <source>Browse</source>
        <translation>Durchsuchen</translation>
    </message>
    <message>
        <location filename="../src/windows/disc/frmDiscFolder.ui"/>
        <source>Choose the folder</source>
        <translation>Den Ordner wählen</translation>
    </message>
    <message>
        <location filename="../src/windows/disc/frmDiscFolder.ui"/>
        <source>Close this window (Esc)</source>
        <translation>Dieses Fenster schließen (Esc)</translation>
    </message>
    <message>
        <location filename="../src/windows/disc/frmDiscFolder.ui"/>
        <source>F&amp;older</source>
        <translation>&amp;Ordner</translation>
    </message>
    <message>
        <location filename="../src/windows/disc/frmDiscFolder.ui"/>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <location filename="../src/windows/disc/frmDiscFolder.ui"/>
        <source>It must be new or empty. It will hold the albums, a README and check sums, and plays where it lies.</source>
        <translation>Er muss neu oder leer sein. Er wird die Alben, eine Datei README und Prüfsummen enthalten und lässt sich dort abspielen, wo er liegt.</translation>
    </message>
    <message>
        <location filename="../src/windows/disc/frmDiscFolder.ui"/>
        <source>What is to be written: whole albums, or shows with the slides that they use</source>
        <translation>Was geschrieben werden soll: ganze Alben oder Diashows mit ihren Dias</translation>
    </message>
    <message>
        <location filename="../src/windows/disc/frmDiscFolder.ui"/>
        <source>Wri&amp;te</source>
        <translation>Schr&amp;eiben</translation>
    </message>
    <message>
        <location filename="../src/windows/disc/frmDiscFolder.ui"/>
        <source>Write</source>
        <translation>Schreiben</translation>
    </message>
    <message>
        <location filename="../src/windows/disc/frmDiscFolder.ui"/>
        <source>Write the folder</source>
        <translation>Den Ordner schreiben</translation>
    </message>
    <message>
        <location filename="../src/windows/disc/frmDiscFolder.ui"/>
        <source>Write to a Folder for a Disc</source>
        <translation>Für einen Datenträger schreiben</translation>
    </message>
    <message>
        <location filename="../src/windows/disc/modDiscCheck.cpp"/>
        <source>%1 of %2 files in
%3
are not as they were written.

%4</source>
        <translation>%1 von %2 Dateien in
%3
sind nicht so, wie sie geschrieben wurden.

%4</translation>
    </message>
    <message>
        <location filename="../src/windows/disc/modDiscCheck.cpp"/>
        <source>All is well: %1 files in
%2
are as they were written.</source>
        <translation>Alles in Ordnung: %1 Dateien in
%2
sind so, wie sie geschrieben wurden.</translation>
    </message>
    <message>
        <location filename="../src/windows/disc/modDiscCheck.cpp"/>
        <source>Check a Disc</source>
        <translation>Datenträger prüfen</translation>
    </message>
    <message>
        <location filename="../src/windows/disc/modDiscCheck.cpp"/>
        <source>Checking ...</source>
        <translation>Wird geprüft ...</translation>
    </message>
    <message>
        <location filename="../src/windows/disc/modDiscCheck.cpp"/>
        <source>Folder of the Disc</source>
        <translation>Ordner des Datenträgers</translation>
    </message>
    <message>
        <location filename="../src/windows/disc/modDiscCheck.cpp"/>
        <source>There is no list of check sums in
%1
A folder that was written for a disc has one, named %2.</source>
        <translation>Es gibt keine Liste von Prüfsummen in
%1
Ein für einen Datenträger geschriebener Ordner hat eine mit dem Namen %2.</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmChoices.cpp"/>
        <source>Another size</source>
        <translation>Andere Größe</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmChoices.cpp"/>
        <source>Every picture as it is</source>
        <translation>Jedes Bild, wie es ist</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmChoices.cpp"/>
        <source>File of the Film</source>
        <translation>Datei des Films</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmChoices.cpp"/>
        <source>Good (%1)</source>
        <translation>Gut (%1)</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmChoices.cpp"/>
        <source>Small (%1)</source>
        <translation>Klein (%1)</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmChoices.cpp"/>
        <source>The best, large (%1)</source>
        <translation>Am besten, groß (%1)</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmChoices.cpp"/>
        <source>Very good (%1)</source>
        <translation>Sehr gut (%1)</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmChoices.cpp"/>
        <source>Very small, coarse (%1)</source>
        <translation>Sehr klein, grob (%1)</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmChoices.ui"/>
        <source>&amp;Quality</source>
        <translation>&amp;Qualität</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmChoices.ui"/>
        <source>A file of subtitles with the name of the film and the ending .srt</source>
        <translation>Eine Datei mit Untertiteln, mit dem Namen des Films und der Endung .srt</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmChoices.ui"/>
        <source>As a &amp;subtitle track</source>
        <translation>Als Unte&amp;rtitelspur</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmChoices.ui"/>
        <source>Below the picture, as in a show; without them the picture has all the room</source>
        <translation>Unter dem Bild wie in einer Diashow; ohne sie hat das Bild den ganzen Platz</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmChoices.ui"/>
        <source>Captions</source>
        <translation>Bildtexte</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmChoices.ui"/>
        <source>Captions as a subtitle track</source>
        <translation>Bildtexte als Untertitelspur</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmChoices.ui"/>
        <source>Captions in a file beside the film</source>
        <translation>Bildtexte in einer Datei neben dem Film</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmChoices.ui"/>
        <source>Captions in the picture</source>
        <translation>Bildtexte im Bild</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmChoices.ui"/>
        <source>Choose the folder and the name of the film</source>
        <translation>Ordner und Namen des Films wählen</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmChoices.ui"/>
        <source>Fil&amp;e</source>
        <translation>Da&amp;tei</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmChoices.ui"/>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmChoices.ui"/>
        <source>First slide</source>
        <translation>Erstes Dia</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmChoices.ui"/>
        <source>Forma&amp;t</source>
        <translation>For&amp;mat</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmChoices.ui"/>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmChoices.ui"/>
        <source>Frames a se&amp;cond</source>
        <translation>B&amp;ilder je Sekunde</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmChoices.ui"/>
        <source>Frames a second</source>
        <translation>Bilder je Sekunde</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmChoices.ui"/>
        <source>From a small file to a fine picture; lossless films have no choice</source>
        <translation>Von kleiner Datei bis zu feinem Bild; verlustfreie Filme haben keine Wahl</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmChoices.ui"/>
        <source>Height in pixels</source>
        <translation>Höhe in Pixeln</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmChoices.ui"/>
        <source>How many pixels the film has; a television shows Full HD or Ultra HD</source>
        <translation>Wie viele Pixel der Film hat; ein Fernseher zeigt Full HD oder Ultra HD</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmChoices.ui"/>
        <source>How pictures and sound are stored, and what such films are for</source>
        <translation>Wie Bild und Ton gespeichert werden und wofür solche Filme gut sind</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmChoices.ui"/>
        <source>How smoothly transitions move; 25 or 30 are usual</source>
        <translation>Wie flüssig sich Übergänge bewegen; üblich sind 25 oder 30</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmChoices.ui"/>
        <source>In a file &amp;beside it</source>
        <translation>In einer Datei da&amp;neben</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmChoices.ui"/>
        <source>In the film, for the player to show or to hide</source>
        <translation>Im Film, vom Abspielprogramm zu zeigen oder zu verbergen</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmChoices.ui"/>
        <source>In the pict&amp;ure</source>
        <translation>Im Bi&amp;ld</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmChoices.ui"/>
        <source>Last slide</source>
        <translation>Letztes Dia</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmChoices.ui"/>
        <source>MP4 plays on nearly everything; lossless files are very large</source>
        <translation>MP4 läuft fast überall; verlustfreie Dateien sind sehr groß</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmChoices.ui"/>
        <source>Pi&amp;xels</source>
        <translation>&amp;Pixel</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmChoices.ui"/>
        <source>Quality</source>
        <translation>Qualität</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmChoices.ui"/>
        <source>Si&amp;ze</source>
        <translation>&amp;Größe</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmChoices.ui"/>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmChoices.ui"/>
        <source>Sli&amp;des from</source>
        <translation>Dias &amp;von</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmChoices.ui"/>
        <source>The height of the film, an even number</source>
        <translation>Die Höhe des Films, eine gerade Zahl</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmChoices.ui"/>
        <source>The slide with which the film begins</source>
        <translation>Das Dia, mit dem der Film beginnt</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmChoices.ui"/>
        <source>The slide with which the film ends</source>
        <translation>Das Dia, mit dem der Film endet</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmChoices.ui"/>
        <source>The width by the height</source>
        <translation>Die Breite mal die Höhe</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmChoices.ui"/>
        <source>The width of the film, an even number</source>
        <translation>Die Breite des Films, eine gerade Zahl</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmChoices.ui"/>
        <source>What the quality means for the picture and the file</source>
        <translation>Was die Qualität für Bild und Datei bedeutet</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmChoices.ui"/>
        <source>Where the captions of the slides are in the film</source>
        <translation>Wo die Bildtexte der Dias im Film stehen</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmChoices.ui"/>
        <source>Where the film goes; its ending follows the format, and the format its ending</source>
        <translation>Wohin der Film kommt; seine Endung folgt dem Format und das Format seiner Endung</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmChoices.ui"/>
        <source>Width in pixels</source>
        <translation>Breite in Pixeln</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmChoices.ui"/>
        <source>by</source>
        <translation>mal</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmChoices.ui"/>
        <source>to</source>
        <translation>bis</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmChoices.ui"/>
        <source>x</source>
        <translation>x</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmTexts.cpp"/>
        <source>%1
are there already. Replace them?</source>
        <translation>%1
sind schon da. Ersetzen?</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmTexts.cpp"/>
        <source>%1
is there already. Replace it?</source>
        <translation>%1
ist schon da. Ersetzen?</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmTexts.cpp"/>
        <source>How large it will be is being found out ...</source>
        <translation>Wie groß er wird, wird gerade ermittelt ...</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmTexts.cpp"/>
        <source>The film is made: %1, %2, %3</source>
        <translation>Der Film ist fertig: %1, %2, %3</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmTexts.cpp"/>
        <source>There is a folder of this name:
%1</source>
        <translation>Es gibt einen Ordner mit diesem Namen:
%1</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmTexts.cpp"/>
        <source>There is no folder of this name:
%1</source>
        <translation>Es gibt keinen Ordner mit diesem Namen:
%1</translation>
    </message>
    <message>
        <location filename="../src/windows/film/FilmTexts.cpp"/>
        <source>You must first name the file of the film.</source>
        <translation>Bitte nennen Sie zuerst die Datei des Films.</translation>
    </message>
    <message>
        <location filename="../src/windows/film/frmFilm.cpp"/>
        <source>%1 are free in the folder.</source>
        <translation>%1 sind im Ordner frei.</translation>
    </message>
    <message>
        <location filename="../src/windows/film/frmFilm.cpp"/>
        <source>%1 written</source>
        <translation>%1 geschrieben</translation>
    </message>
    <message>
        <location filename="../src/windows/film/frmFilm.cpp"/>
        <source>%1% - </source>
        <translation>%1 % - </translation>
    </message>
    <message>
        <location filename="../src/windows/film/frmFilm.cpp"/>
        <source>&amp;Stop the Film</source>
        <translation>Film &amp;abbrechen</translation>
    </message>
    <message>
        <location filename="../src/windows/film/frmFilm.cpp"/>
        <source>A film is being made:
%1

When this window closes the film is given up, and nothing of it is left.</source>
        <translation>Ein Film entsteht gerade:
%1

Wenn sich dieses Fenster schließt, wird er aufgegeben, und nichts von ihm bleibt übrig.</translation>
    </message>
    <message>
        <location filename="../src/windows/film/frmFilm.cpp"/>
        <source>A film is just being made in this file:
%1</source>
        <translation>In dieser Datei entsteht gerade ein Film:
%1</translation>
    </message>
    <message>
        <location filename="../src/windows/film/frmFilm.cpp"/>
        <source>About %1 are expected.</source>
        <translation>Erwartet werden etwa %1.</translation>
    </message>
    <message>
        <location filename="../src/windows/film/frmFilm.cpp"/>
        <source>Film - %1</source>
        <translation>Film - %1</translation>
    </message>
    <message>
        <location filename="../src/windows/film/frmFilm.cpp"/>
        <source>How large it will be is not known.</source>
        <translation>Wie groß er wird, ist nicht bekannt.</translation>
    </message>
    <message>
        <location filename="../src/windows/film/frmFilm.cpp"/>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <location filename="../src/windows/film/frmFilm.cpp"/>
        <source>Missing</source>
        <translation>Fehlt</translation>
    </message>
    <message>
        <location filename="../src/windows/film/frmFilm.cpp"/>
        <source>Note</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <location filename="../src/windows/film/frmFilm.cpp"/>
        <source>Nothing is missing in the film.</source>
        <translation>Im Film fehlt nichts.</translation>
    </message>
    <message>
        <location filename="../src/windows/film/frmFilm.cpp"/>
        <source>Nothing is wrong with this show.</source>
        <translation>An dieser Diashow ist nichts auszusetzen.</translation>
    </message>
    <message>
        <location filename="../src/windows/film/frmFilm.cpp"/>
        <source>Problem</source>
        <translation>Problem</translation>
    </message>
    <message>
        <location filename="../src/windows/film/frmFilm.cpp"/>
        <source>Slide %1 of %2</source>
        <translation>Dia %1 von %2</translation>
    </message>
    <message>
        <location filename="../src/windows/film/frmFilm.cpp"/>
        <source>Stop making the film?
%1

Nothing of it is left then.</source>
        <translation>Den Film abbrechen?
%1

Nichts von ihm bleibt dann übrig.</translation>
    </message>
    <message>
        <location filename="../src/windows/film/frmFilm.cpp"/>
        <source>The film is being made: %1</source>
        <translation>Der Film entsteht: %1</translation>
    </message>
    <message>
        <location filename="../src/windows/film/frmFilm.cpp"/>
        <source>The film is being stopped ...</source>
        <translation>Der Film wird abgebrochen ...</translation>
    </message>
    <message>
        <location filename="../src/windows/film/frmFilm.cpp"/>
        <source>The film was not made.</source>
        <translation>Der Film ist nicht entstanden.</translation>
    </message>
    <message>
        <location filename="../src/windows/film/frmFilm.cpp"/>
        <source>The film was stopped; nothing of it is left.</source>
        <translation>Der Film wurde abgebrochen; nichts von ihm ist übrig.</translation>
    </message>
    <message>
        <location filename="../src/windows/film/frmFilm.cpp"/>
        <source>The show is being rehearsed ...</source>
        <translation>Die Diashow wird geprobt ...</translation>
    </message>
    <message>
        <location filename="../src/windows/film/frmFilm.ui"/>
        <source>&amp;Make Another</source>
        <translation>No&amp;ch einen machen</translation>
    </message>
    <message>
        <location filename="../src/windows/film/frmFilm.ui"/>
        <source>&amp;Make Film</source>
        <translation>Film mach&amp;en</translation>
    </message>
    <message>
        <location filename="../src/windows/film/frmFilm.ui"/>
        <source>&amp;Show Folder</source>
        <translation>Ordner &amp;zeigen</translation>
    </message>
    <message>
        <location filename="../src/windows/film/frmFilm.ui"/>
        <source>Choose anew, for another film of this show</source>
        <translation>Neu wählen, für einen weiteren Film dieser Diashow</translation>
    </message>
    <message>
        <location filename="../src/windows/film/frmFilm.ui"/>
        <source>How large the film will be, about, and how much room there is for it</source>
        <translation>Wie groß der Film etwa wird und wie viel Platz für ihn da ist</translation>
    </message>
    <message>
        <location filename="../src/windows/film/frmFilm.ui"/>
        <source>How much of the film is made</source>
        <translation>Wie viel vom Film schon fertig ist</translation>
    </message>
    <message>
        <location filename="../src/windows/film/frmFilm.ui"/>
        <source>How the film looks: at its beginning, and while it is made as far as it is</source>
        <translation>Wie der Film aussieht: an seinem Anfang und, während er entsteht, so weit er ist</translation>
    </message>
    <message>
        <location filename="../src/windows/film/frmFilm.ui"/>
        <source>Make another</source>
        <translation>Noch einen machen</translation>
    </message>
    <message>
        <location filename="../src/windows/film/frmFilm.ui"/>
        <source>Make film</source>
        <translation>Film machen</translation>
    </message>
    <message>
        <location filename="../src/windows/film/frmFilm.ui"/>
        <source>Make the film of the show as it is stored now</source>
        <translation>Den Film aus der Diashow machen, wie sie jetzt gespeichert ist</translation>
    </message>
    <message>
        <location filename="../src/windows/film/frmFilm.ui"/>
        <source>Op&amp;en Film</source>
        <translation>Film &amp;öffnen</translation>
    </message>
    <message>
        <location filename="../src/windows/film/frmFilm.ui"/>
        <source>Open film</source>
        <translation>Film öffnen</translation>
    </message>
    <message>
        <location filename="../src/windows/film/frmFilm.ui"/>
        <source>Open the folder in which the film is</source>
        <translation>Den Ordner öffnen, in dem der Film liegt</translation>
    </message>
    <message>
        <location filename="../src/windows/film/frmFilm.ui"/>
        <source>Play the film in the desktop&apos;s player</source>
        <translation>Den Film im Abspielprogramm des Systems zeigen</translation>
    </message>
    <message>
        <location filename="../src/windows/film/frmFilm.ui"/>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <location filename="../src/windows/film/frmFilm.ui"/>
        <source>Problems a&amp;nd notes</source>
        <translation>Pro&amp;bleme und Hinweise</translation>
    </message>
    <message>
        <location filename="../src/windows/film/frmFilm.ui"/>
        <source>Problems and notes</source>
        <translation>Probleme und Hinweise</translation>
    </message>
    <message>
        <location filename="../src/windows/film/frmFilm.ui"/>
        <source>Show folder</source>
        <translation>Ordner zeigen</translation>
    </message>
    <message>
        <location filename="../src/windows/film/frmFilm.ui"/>
        <source>Stop making the film; nothing of it is left (Esc)</source>
        <translation>Den Film abbrechen; nichts von ihm bleibt übrig (Esc)</translation>
    </message>
    <message>
        <location filename="../src/windows/film/frmFilm.ui"/>
        <source>What is wrong with the show; a film is made all the same. A double click or Enter goes to the slide in the Slide Show Manager</source>
        <translation>Was an der Diashow nicht stimmt; ein Film entsteht trotzdem. Ein Doppelklick oder die Eingabetaste führt zum Dia in der Diashow-Verwaltung</translation>
    </message>
    <message>
        <location filename="../src/windows/frame/KeepPicturesField.cpp"/>
        <source>&amp;Keep pictures at most</source>
        <translation>Bilder höchstens so &amp;groß</translation>
    </message>
    <message>
        <location filename="../src/windows/frame/KeepPicturesField.cpp"/>
        <source>Keep pictures at most</source>
        <translation>Bilder höchstens so groß</translation>
    </message>
    <message>
        <location filename="../src/windows/frame/KeepPicturesField.cpp"/>
        <source>The size in pixels at which pictures come into albums; larger ones are made smaller, those that are there stay as they are</source>
        <translation>Die Größe in Pixeln, in der Bilder in Alben kommen; größere werden verkleinert, vorhandene bleiben, wie sie sind</translation>
    </message>
    <message>
        <location filename="../src/windows/frame/KeepPicturesField.cpp"/>
        <source>The size of pictures counts for this window alone: %1</source>
        <translation>Die Größe der Bilder gilt nur für dieses Fenster: %1</translation>
    </message>
    <message>
        <location filename="../src/windows/frame/frmInputBox.ui"/>
        <source>Answer</source>
        <translation>Antwort</translation>
    </message>
    <message>
        <location filename="../src/windows/frame/frmInputBox.ui"/>
        <source>Enter the answer</source>
        <translation>Geben Sie die Antwort ein</translation>
    </message>
    <message>
        <location filename="../src/windows/frame/frmInputBox.ui"/>
        <source>Go on with this answer (Enter)</source>
        <translation>Mit dieser Antwort weitermachen (Eingabetaste)</translation>
    </message>
    <message>
        <location filename="../src/windows/frame/frmInputBox.ui"/>
        <source>Leave it be (Esc)</source>
        <translation>Sein lassen (Esc)</translation>
    </message>
    <message>
        <location filename="../src/windows/frame/modUserInput.cpp"/>
        <source>The entered %1 contained the following illegal characters:
%2</source>
        <translation>Die Eingabe „%1“ enthielt unzulässige Zeichen:
%2</translation>
    </message>
    <message>
        <location filename="../src/windows/gallery/AlbumPage.cpp"/>
        <source>&amp;Edit Caption</source>
        <translation>Bild&amp;text bearbeiten</translation>
    </message>
    <message>
        <location filename="../src/windows/gallery/AlbumPage.cpp"/>
        <source>&amp;Print...</source>
        <translation>&amp;Drucken...</translation>
    </message>
    <message>
        <location filename="../src/windows/gallery/AlbumPage.cpp"/>
        <source>Open in the &amp;Slide Manager</source>
        <translation>In der Dia-&amp;Verwaltung öffnen</translation>
    </message>
    <message>
        <location filename="../src/windows/gallery/AlbumPage.cpp"/>
        <source>Print a S&amp;heet of this Slide...</source>
        <translation>Ein &amp;Blatt von diesem Dia drucken...</translation>
    </message>
    <message>
        <location filename="../src/windows/gallery/AlbumPage.cpp"/>
        <source>Show on &amp;Full Screen</source>
        <translation>Auf dem &amp;ganzen Bildschirm zeigen</translation>
    </message>
    <message>
        <location filename="../src/windows/gallery/AlbumPage.cpp"/>
        <source>Slides of %1</source>
        <translation>Dias von %1</translation>
    </message>
    <message>
        <location filename="../src/windows/gallery/AlbumPage.cpp"/>
        <source>This album has no slides yet.
The slide manager (Ctrl+E) takes pictures into it.</source>
        <translation>Dieses Album hat noch keine Dias.
Die Dia-Verwaltung (Strg+E) nimmt Bilder auf.</translation>
    </message>
    <message>
        <location filename="../src/windows/gallery/AlbumPage.cpp"/>
        <source>Turn &amp;Left</source>
        <translation>Nach li&amp;nks drehen</translation>
    </message>
    <message>
        <location filename="../src/windows/gallery/AlbumPage.cpp"/>
        <source>Turn &amp;Right</source>
        <translation>Nach &amp;rechts drehen</translation>
    </message>
    <message>
        <location filename="../src/windows/gallery/AlbumPage.ui"/>
        <source>Back to the albums</source>
        <translation>Zurück zu den Alben</translation>
    </message>
    <message>
        <location filename="../src/windows/gallery/AlbumPage.ui"/>
        <source>Back to the albums (Esc)</source>
        <translation>Zurück zu den Alben (Esc)</translation>
    </message>
    <message>
        <location filename="../src/windows/gallery/AlbumPage.ui"/>
        <source>Enter shows a slide on the whole screen, F2 changes its caption</source>
        <translation>Eingabe zeigt ein Dia auf dem ganzen Bildschirm, F2 ändert seinen Bildtext</translation>
    </message>
    <message>
        <location filename="../src/windows/gallery/AlbumPage.ui"/>
        <source>Size of the pictures</source>
        <translation>Größe der Bilder</translation>
    </message>
    <message>
        <location filename="../src/windows/gallery/AlbumPage.ui"/>
        <source>Size of the pictures (Ctrl+Plus, Ctrl+Minus, Ctrl and the wheel)</source>
        <translation>Größe der Bilder (Strg+Plus, Strg+Minus, Strg und Mausrad)</translation>
    </message>
    <message>
        <location filename="../src/windows/gallery/AlbumPage.ui"/>
        <source>Slides of the album</source>
        <translation>Dias des Albums</translation>
    </message>
    <message>
        <location filename="../src/windows/gallery/SlideCommands.cpp"/>
        <source>Are you sure you want to delete the selected slides?</source>
        <translation>Möchten Sie die gewählten Dias wirklich löschen?</translation>
    </message>
    <message>
        <location filename="../src/windows/gallery/SlideCommands.cpp"/>
        <source>The database is read-only:
its slides cannot be changed.</source>
        <translation>Die Datenbank ist schreibgeschützt:
Ihre Dias lassen sich nicht ändern.</translation>
    </message>
    <message>
        <location filename="../src/windows/gallery/SlideTurning.cpp"/>
        <source>%1 slides could not be turned.</source>
        <translation>%1 Dias ließen sich nicht drehen.</translation>
    </message>
    <message>
        <location filename="../src/windows/gallery/SlideTurning.cpp"/>
        <source>Turning Slides</source>
        <translation>Dias drehen</translation>
    </message>
    <message>
        <location filename="../src/windows/gallery/SlideTurning.cpp"/>
        <source>Turning Slides ...</source>
        <translation>Dias werden gedreht ...</translation>
    </message>
    <message>
        <location filename="../src/windows/gallery/TileDelegate.cpp"/>
        <source>Cannot be read</source>
        <translation>Nicht lesbar</translation>
    </message>
    <message>
        <location filename="../src/windows/gallery/TileDelegate.cpp"/>
        <source>Caption of %1</source>
        <translation>Bildtext von %1</translation>
    </message>
    <message>
        <location filename="../src/windows/gallery/TileDelegate.cpp"/>
        <source>No caption</source>
        <translation>Kein Bildtext</translation>
    </message>
    <message>
        <location filename="../src/windows/gallery/frmSlideScreen.cpp"/>
        <source>&amp;Back to the Album</source>
        <translation>&amp;Zurück zum Album</translation>
    </message>
    <message>
        <location filename="../src/windows/gallery/frmSlideScreen.cpp"/>
        <source>Reading %1 ...</source>
        <translation>%1 wird gelesen ...</translation>
    </message>
    <message>
        <location filename="../src/windows/gallery/frmSlideScreen.cpp"/>
        <source>This picture cannot be shown.</source>
        <translation>Dieses Bild lässt sich nicht zeigen.</translation>
    </message>
    <message>
        <location filename="../src/windows/handling/GotoField.cpp"/>
        <source>Go to slide (1 to %1), or words of its caption:</source>
        <translation>Zu Dia (1 bis %1) oder Wörtern seines Bildtextes:</translation>
    </message>
    <message>
        <location filename="../src/windows/handling/GotoField.cpp"/>
        <source>There is no such number or caption.</source>
        <translation>Diese Nummer oder diesen Bildtext gibt es nicht.</translation>
    </message>
    <message>
        <location filename="../src/windows/handling/KeyCard.cpp"/>
        <source>B, full stop</source>
        <translation>B, Punkt</translation>
    </message>
    <message>
        <location filename="../src/windows/handling/KeyCard.cpp"/>
        <source>C</source>
        <translation>C</translation>
    </message>
    <message>
        <location filename="../src/windows/handling/KeyCard.cpp"/>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <location filename="../src/windows/handling/KeyCard.cpp"/>
        <source>F1</source>
        <translation>F1</translation>
    </message>
    <message>
        <location filename="../src/windows/handling/KeyCard.cpp"/>
        <source>Finger</source>
        <translation>Finger</translation>
    </message>
    <message>
        <location filename="../src/windows/handling/KeyCard.cpp"/>
        <source>G</source>
        <translation>G</translation>
    </message>
    <message>
        <location filename="../src/windows/handling/KeyCard.cpp"/>
        <source>Home, End</source>
        <translation>Pos1, Ende</translation>
    </message>
    <message>
        <location filename="../src/windows/handling/KeyCard.cpp"/>
        <source>Keys of the show</source>
        <translation>Tasten der Diashow</translation>
    </message>
    <message>
        <location filename="../src/windows/handling/KeyCard.cpp"/>
        <source>Left, Down, Page Up, Backspace, S, 2</source>
        <translation>Links, Ab, Bild auf, Rücktaste, S, 2</translation>
    </message>
    <message>
        <location filename="../src/windows/handling/KeyCard.cpp"/>
        <source>Menu, Shift+F10, right button</source>
        <translation>Menü, Umschalt+F10, rechte Maustaste</translation>
    </message>
    <message>
        <location filename="../src/windows/handling/KeyCard.cpp"/>
        <source>Mouse at the lower edge</source>
        <translation>Maus am unteren Rand</translation>
    </message>
    <message>
        <location filename="../src/windows/handling/KeyCard.cpp"/>
        <source>R</source>
        <translation>R</translation>
    </message>
    <message>
        <location filename="../src/windows/handling/KeyCard.cpp"/>
        <source>Right, Up, Page Down, Enter, N, W, 8</source>
        <translation>Rechts, Auf, Bild ab, Eingabe, N, W, 8</translation>
    </message>
    <message>
        <location filename="../src/windows/handling/KeyCard.cpp"/>
        <source>Space, P</source>
        <translation>Leertaste, P</translation>
    </message>
    <message>
        <location filename="../src/windows/handling/KeyCard.cpp"/>
        <source>Space, a click</source>
        <translation>Leertaste, Klick</translation>
    </message>
    <message>
        <location filename="../src/windows/handling/KeyCard.cpp"/>
        <source>black screen and back; the show waits meanwhile</source>
        <translation>schwarzer Bildschirm und zurück; die Diashow wartet so lange</translation>
    </message>
    <message>
        <location filename="../src/windows/handling/KeyCard.cpp"/>
        <source>captions off and on</source>
        <translation>Bildtexte aus und ein</translation>
    </message>
    <message>
        <location filename="../src/windows/handling/KeyCard.cpp"/>
        <source>close this card; then end the show</source>
        <translation>diese Karte schließen; dann die Diashow beenden</translation>
    </message>
    <message>
        <location filename="../src/windows/handling/KeyCard.cpp"/>
        <source>first slide, last slide</source>
        <translation>erstes Dia, letztes Dia</translation>
    </message>
    <message>
        <location filename="../src/windows/handling/KeyCard.cpp"/>
        <source>go to a slide by its number or by words of its caption</source>
        <translation>zu einem Dia nach Nummer oder Wörtern seines Bildtextes</translation>
    </message>
    <message>
        <location filename="../src/windows/handling/KeyCard.cpp"/>
        <source>menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <location filename="../src/windows/handling/KeyCard.cpp"/>
        <source>next slide</source>
        <translation>nächstes Dia</translation>
    </message>
    <message>
        <location filename="../src/windows/handling/KeyCard.cpp"/>
        <source>pause, and go on</source>
        <translation>Pause und weiter</translation>
    </message>
    <message>
        <location filename="../src/windows/handling/KeyCard.cpp"/>
        <source>previous slide</source>
        <translation>voriges Dia</translation>
    </message>
    <message>
        <location filename="../src/windows/handling/KeyCard.cpp"/>
        <source>stop, and show the same slide again</source>
        <translation>anhalten und dasselbe Dia noch einmal zeigen</translation>
    </message>
    <message>
        <location filename="../src/windows/handling/KeyCard.cpp"/>
        <source>swipe, or tap at the right or left; hold for the menu</source>
        <translation>wischen oder rechts oder links tippen; halten für das Menü</translation>
    </message>
    <message>
        <location filename="../src/windows/handling/KeyCard.cpp"/>
        <source>this card and back; the show waits meanwhile</source>
        <translation>diese Karte und zurück; die Diashow wartet so lange</translation>
    </message>
    <message>
        <location filename="../src/windows/handling/KeyCard.cpp"/>
        <source>where the show stands; a click goes to that slide</source>
        <translation>wo die Diashow steht; ein Klick führt zu diesem Dia</translation>
    </message>
    <message>
        <location filename="../src/windows/handling/PlaceLine.cpp"/>
        <source>Where the show stands</source>
        <translation>Wo die Diashow steht</translation>
    </message>
    <message>
        <location filename="../src/windows/handling/ShowHands.cpp"/>
        <source>Black screen</source>
        <translation>Schwarzer Bildschirm</translation>
    </message>
    <message>
        <location filename="../src/windows/handling/ShowHands.cpp"/>
        <source>There is no picture to show.</source>
        <translation>Es ist kein Bild zu zeigen.</translation>
    </message>
    <message>
        <location filename="../src/windows/handling/WordsOfFailure.cpp"/>
        <source>Press Esc to leave, F1 for the keys.</source>
        <translation>Esc beendet, F1 zeigt die Tasten.</translation>
    </message>
    <message>
        <location filename="../src/windows/home/Beginnings.cpp"/>
        <source>Bring in an album from another computer or a disc</source>
        <translation>Ein Album von einem anderen Rechner oder Datenträger holen</translation>
    </message>
    <message>
        <location filename="../src/windows/home/Beginnings.cpp"/>
        <source>Collect pictures from folders and drives</source>
        <translation>Bilder aus Ordnern und Laufwerken sammeln</translation>
    </message>
    <message>
        <location filename="../src/windows/home/Beginnings.cpp"/>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <location filename="../src/windows/home/Beginnings.cpp"/>
        <source>New Album</source>
        <translation>Neues Album</translation>
    </message>
    <message>
        <location filename="../src/windows/home/Beginnings.cpp"/>
        <source>Quick Show</source>
        <translation>Schnell-Diashow</translation>
    </message>
    <message>
        <location filename="../src/windows/home/Beginnings.cpp"/>
        <source>There are no albums here, and none can be made: their folder cannot be written.</source>
        <translation>Hier gibt es keine Alben, und es lassen sich keine anlegen: In ihren Ordner kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <location filename="../src/windows/home/Beginnings.cpp"/>
        <source>or drop a folder here</source>
        <translation>oder ziehen Sie einen Ordner hierher</translation>
    </message>
    <message>
        <location filename="../src/windows/home/CardDeeds.cpp"/>
        <source>&amp;Delete...</source>
        <translation>&amp;Löschen...</translation>
    </message>
    <message>
        <location filename="../src/windows/home/CardDeeds.cpp"/>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <location filename="../src/windows/home/CardDeeds.cpp"/>
        <source>&amp;Edit Slide</source>
        <translation>Dia &amp;bearbeiten</translation>
    </message>
    <message>
        <location filename="../src/windows/home/CardDeeds.cpp"/>
        <source>&amp;Make a Film...</source>
        <translation>Film &amp;machen...</translation>
    </message>
    <message>
        <location filename="../src/windows/home/CardDeeds.cpp"/>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <location filename="../src/windows/home/CardDeeds.cpp"/>
        <source>&amp;Play</source>
        <translation>Abs&amp;pielen</translation>
    </message>
    <message>
        <location filename="../src/windows/home/CardDeeds.cpp"/>
        <source>&amp;Rename...</source>
        <translation>&amp;Umbenennen...</translation>
    </message>
    <message>
        <location filename="../src/windows/home/CardDeeds.cpp"/>
        <source>&amp;View</source>
        <translation>&amp;Ansehen</translation>
    </message>
    <message>
        <location filename="../src/windows/home/CardDeeds.cpp"/>
        <source>Compose a &amp;Slide Show</source>
        <translation>Diashow &amp;zusammenstellen</translation>
    </message>
    <message>
        <location filename="../src/windows/home/CardDeeds.cpp"/>
        <source>E&amp;xport...</source>
        <translation>E&amp;xportieren...</translation>
    </message>
    <message>
        <location filename="../src/windows/home/CardDeeds.cpp"/>
        <source>Edit &amp;Captions</source>
        <translation>Bild&amp;texte bearbeiten</translation>
    </message>
    <message>
        <location filename="../src/windows/home/CardDeeds.cpp"/>
        <source>Pr&amp;int...</source>
        <translation>&amp;Drucken...</translation>
    </message>
    <message>
        <location filename="../src/windows/home/CardDeeds.cpp"/>
        <source>Re&amp;hearse</source>
        <translation>Prob&amp;elauf</translation>
    </message>
    <message>
        <location filename="../src/windows/home/CardDeeds.cpp"/>
        <source>Rename Slide Show</source>
        <translation>Diashow umbenennen</translation>
    </message>
    <message>
        <location filename="../src/windows/home/CardDeeds.cpp"/>
        <source>Slide Show</source>
        <translation>Diashow</translation>
    </message>
    <message>
        <location filename="../src/windows/home/CardDelegate.cpp"/>
        <source>in %1</source>
        <translation>in %1</translation>
    </message>
    <message>
        <location filename="../src/windows/home/HomeCards.cpp"/>
        <source> of %1</source>
        <translation> von %1</translation>
    </message>
    <message>
        <location filename="../src/windows/home/HomeCards.cpp"/>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <location filename="../src/windows/home/HomeCards.cpp"/>
        <source>1 slide show</source>
        <translation>1 Diashow</translation>
    </message>
    <message>
        <location filename="../src/windows/home/HomeCards.cpp"/>
        <source>Album %1, %2</source>
        <translation>Album %1, %2</translation>
    </message>
    <message>
        <location filename="../src/windows/home/HomeCards.cpp"/>
        <source>Slide %1%2</source>
        <translation>Dia %1%2</translation>
    </message>
    <message>
        <location filename="../src/windows/home/HomeCards.cpp"/>
        <source>Slide show %1%2, %3</source>
        <translation>Diashow %1%2, %3</translation>
    </message>
    <message>
        <location filename="../src/windows/home/HomeCards.cpp"/>
        <source>Slide show, %1</source>
        <translation>Diashow, %1</translation>
    </message>
    <message>
        <location filename="../src/windows/home/HomeList.cpp"/>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <location filename="../src/windows/home/HomeList.cpp"/>
        <source>1 album</source>
        <translation>1 Album</translation>
    </message>
    <message>
        <location filename="../src/windows/home/HomeList.cpp"/>
        <source>Enter plays a show or opens an album, the menu key offers what else can be done</source>
        <translation>Eingabe spielt eine Diashow ab oder öffnet ein Album; die Menütaste zeigt, was sonst möglich ist</translation>
    </message>
    <message>
        <location filename="../src/windows/home/HomeList.cpp"/>
        <source>No album, slide show or caption has “%1” in it.</source>
        <translation>In keinem Album, keiner Diashow und keinem Bildtext kommt „%1“ vor.</translation>
    </message>
    <message>
        <location filename="../src/windows/home/HomeList.cpp"/>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <location filename="../src/windows/home/HomeList.cpp"/>
        <source>Search albums, slide shows and captions</source>
        <translation>Alben, Diashows und Bildtexte durchsuchen</translation>
    </message>
    <message>
        <location filename="../src/windows/home/HomeList.cpp"/>
        <source>Search names and captions</source>
        <translation>Namen und Bildtexte suchen</translation>
    </message>
    <message>
        <location filename="../src/windows/home/HomeList.cpp"/>
        <source>Type a part of a name or of a caption (Ctrl+F)</source>
        <translation>Geben Sie einen Teil eines Namens oder Bildtextes ein (Strg+F)</translation>
    </message>
    <message>
        <location filename="../src/windows/home/HomeList.cpp"/>
        <source>of which %1 are shown; another word finds fewer</source>
        <translation>davon sind %1 zu sehen; ein weiteres Wort findet weniger</translation>
    </message>
    <message>
        <location filename="../src/windows/home/LeftShow.cpp"/>
        <source>Goes on at slide %1 of %2</source>
        <translation>Weiter bei Dia %1 von %2</translation>
    </message>
    <message>
        <location filename="../src/windows/home/LeftShow.cpp"/>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <location filename="../src/windows/home/LeftShow.cpp"/>
        <source>Play %1. %2</source>
        <translation>%1 abspielen. %2</translation>
    </message>
    <message>
        <location filename="../src/windows/home/LeftShow.cpp"/>
        <source>Play the slide show %1 from where it was left</source>
        <translation>Die Diashow %1 dort weiterspielen, wo sie verlassen wurde</translation>
    </message>
    <message>
        <location filename="../src/windows/import/DirectoryPanel.cpp"/>
        <source>%1 graphics files detected.</source>
        <translation>%1 Bilddateien gefunden.</translation>
    </message>
    <message>
        <location filename="../src/windows/import/DirectoryPanel.cpp"/>
        <source>%1 graphics files so far ...</source>
        <translation>Bisher %1 Bilddateien ...</translation>
    </message>
    <message>
        <location filename="../src/windows/import/DirectoryPanel.cpp"/>
        <source>There is no directory of this name.</source>
        <translation>Es gibt keinen Ordner mit diesem Namen.</translation>
    </message>
    <message>
        <location filename="../src/windows/import/DirectoryPanel.ui"/>
        <source>&amp;Import Sub-directories</source>
        <translation>Unterordner &amp;mitnehmen</translation>
    </message>
    <message>
        <location filename="../src/windows/import/DirectoryPanel.ui"/>
        <source>Import Sub-directories</source>
        <translation>Unterordner mitnehmen</translation>
    </message>
    <message>
        <location filename="../src/windows/import/DirectoryPanel.ui"/>
        <source>Import graphics recursively</source>
        <translation>Auch die Bilder in allen Unterordnern importieren</translation>
    </message>
    <message>
        <location filename="../src/windows/import/DirectoryPanel.ui"/>
        <source>Places</source>
        <translation>Orte</translation>
    </message>
    <message>
        <location filename="../src/windows/import/DirectoryPanel.ui"/>
        <source>Places to begin from: folders of your own, drives and media</source>
        <translation>Orte zum Anfangen: eigene Ordner, Laufwerke und Datenträger</translation>
    </message>
    <message>
        <location filename="../src/windows/import/DirectoryPanel.ui"/>
        <source>The number of pictures that lie in the directory</source>
        <translation>Wie viele Bilder im Ordner liegen</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ImportForm.cpp"/>
        <source>%1% Complete</source>
        <translation>%1 % fertig</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ImportForm.cpp"/>
        <source>Are you sure you want to discard the selected pictures?</source>
        <translation>Möchten Sie die gewählten Bilder wirklich verwerfen?</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ImportForm.cpp"/>
        <source>Find Graphics</source>
        <translation>Bilder suchen</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ImportForm.cpp"/>
        <source>Import Graphics Directory</source>
        <translation>Ordner mit Bildern importieren</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ImportForm.cpp"/>
        <source>Import the graphics in a directory</source>
        <translation>Die Bilder eines Ordners importieren</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ImportForm.cpp"/>
        <source>Importing Slides ...</source>
        <translation>Dias werden importiert ...</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ImportForm.cpp"/>
        <source>No pictures here.
Import a directory, or drop files and folders on this window.</source>
        <translation>Hier sind keine Bilder.
Importieren Sie einen Ordner, oder ziehen Sie Dateien und Ordner auf dieses Fenster.</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ImportForm.cpp"/>
        <source>Pictures moved here are imported,
in this order.</source>
        <translation>Bilder hier werden
in dieser Reihenfolge importiert.</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ImportForm.cpp"/>
        <source>Search drives for graphics to import</source>
        <translation>Laufwerke nach Bildern für den Import durchsuchen</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ImportForm.cpp"/>
        <source>You must select atleast 1 picture in order to import.</source>
        <translation>Bitte wählen Sie mindestens ein Bild für den Import.</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ImportForm.ui"/>
        <source>Add all remaining pictures to the pictures to be imported</source>
        <translation>Alle übrigen Bilder zum Import hinzufügen</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ImportForm.ui"/>
        <source>Add the selected pictures to the pictures to be imported</source>
        <translation>Die gewählten Bilder zum Import hinzufügen</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ImportForm.ui"/>
        <source>Alt+Left</source>
        <translation>Alt+Left</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ImportForm.ui"/>
        <source>Alt+Left takes the marked ones out of the import; F2 changes a caption</source>
        <translation>Alt+Links nimmt die markierten aus dem Import; F2 ändert einen Bildtext</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ImportForm.ui"/>
        <source>Alt+Right</source>
        <translation>Alt+Right</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ImportForm.ui"/>
        <source>Alt+Right moves the marked ones into the import; Enter shows one large</source>
        <translation>Alt+Rechts nimmt die markierten in den Import; Eingabe zeigt eines groß</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ImportForm.ui"/>
        <source>Alt+Shift+Left</source>
        <translation>Alt+Shift+Left</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ImportForm.ui"/>
        <source>Alt+Shift+Right</source>
        <translation>Alt+Shift+Right</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ImportForm.ui"/>
        <source>Close this window without importing</source>
        <translation>Dieses Fenster schließen, ohne zu importieren</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ImportForm.ui"/>
        <source>Pictures not yet selected for import</source>
        <translation>Bilder, die noch nicht für den Import gewählt sind</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ImportForm.ui"/>
        <source>Pictures selected for import</source>
        <translation>Bilder, die für den Import gewählt sind</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ImportForm.ui"/>
        <source>Remove all pictures from the Pictures to be imported</source>
        <translation>Alle Bilder vom Import ausnehmen</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ImportForm.ui"/>
        <source>Remove the selected pictures from the Pictures to be imported</source>
        <translation>Die gewählten Bilder vom Import ausnehmen</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ImportForm.ui"/>
        <source>Slide Show &amp;Name</source>
        <translation>&amp;Name der Diashow</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ImportForm.ui"/>
        <source>Slide Show Name</source>
        <translation>Name der Diashow</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ImportForm.ui"/>
        <source>The name of the new album and of its slide show</source>
        <translation>Der Name des neuen Albums und seiner Diashow</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ImportFormRead.cpp"/>
        <source>Discard Confirmation</source>
        <translation>Wirklich verwerfen?</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ImportFormRead.cpp"/>
        <source>Do you want to discard the remaining non-selected graphics?</source>
        <translation>Möchten Sie die übrigen, nicht gewählten Bilder verwerfen?</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ImportOptions.cpp"/>
        <source>&amp;Captions from the pictures&apos; own words</source>
        <translation>Bild&amp;texte aus den Angaben der Bilder</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ImportOptions.cpp"/>
        <source>By name</source>
        <translation>Nach Namen</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ImportOptions.cpp"/>
        <source>By the time taken</source>
        <translation>Nach Aufnahmezeit</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ImportOptions.cpp"/>
        <source>Captions from the pictures&apos; own words</source>
        <translation>Bildtexte aus den Angaben der Bilder</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ImportOptions.cpp"/>
        <source>Or&amp;der pictures</source>
        <translation>R&amp;eihenfolge</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ImportOptions.cpp"/>
        <source>Order pictures</source>
        <translation>Reihenfolge</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ImportOptions.cpp"/>
        <source>The order in which pictures are listed before they are selected; IMG_2 comes before IMG_10</source>
        <translation>In welcher Reihenfolge Bilder vor der Auswahl stehen; IMG_2 kommt vor IMG_10</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ImportOptions.cpp"/>
        <source>Titles and descriptions that are kept in the pictures become captions; else the names of the files</source>
        <translation>Titel und Beschreibungen in den Bildern werden zu Bildtexten, sonst die Namen der Dateien</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ImportTally.cpp"/>
        <source>
%1 slides discarded.</source>
        <translation>
%1 Dias verworfen.</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ImportTally.cpp"/>
        <source>%1

%2 of %3 slides were imported before.</source>
        <translation>%1

%2 von %3 Dias wurden vorher importiert.</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ImportTally.cpp"/>
        <source>%1 of %2 slides were imported before you stopped.
The others stay selected.</source>
        <translation>%1 von %2 Dias wurden importiert, bevor Sie angehalten haben.
Die anderen bleiben gewählt.</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ImportTally.cpp"/>
        <source>%1 slides successfully imported.</source>
        <translation>%1 Dias erfolgreich importiert.</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ImportTally.cpp"/>
        <source>These stay selected, and can be imported when they are mended:</source>
        <translation>Diese bleiben gewählt und lassen sich importieren, sobald sie in Ordnung sind:</translation>
    </message>
    <message>
        <location filename="../src/windows/import/PassedOverLine.cpp"/>
        <source>Name the files that were passed over, and say why</source>
        <translation>Die übergangenen Dateien nennen und sagen, warum</translation>
    </message>
    <message>
        <location filename="../src/windows/import/PassedOverLine.cpp"/>
        <source>Sh&amp;ow ...</source>
        <translation>&amp;Zeigen ...</translation>
    </message>
    <message>
        <location filename="../src/windows/import/PassedOverLine.cpp"/>
        <source>Show the files that were passed over</source>
        <translation>Die übergangenen Dateien zeigen</translation>
    </message>
    <message>
        <location filename="../src/windows/import/PictureReading.cpp"/>
        <source>Reading Slides ...</source>
        <translation>Dias werden gelesen ...</translation>
    </message>
    <message>
        <location filename="../src/windows/import/PictureReading.cpp"/>
        <source>Sorting Slides ...</source>
        <translation>Dias werden sortiert ...</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ReadingReport.cpp"/>
        <source>%1 could not be opened.</source>
        <translation>%1: nicht zu öffnen.</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ReadingReport.cpp"/>
        <source>%1 could not be read.</source>
        <translation>%1: nicht lesbar.</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ReadingReport.cpp"/>
        <source>%1 files</source>
        <translation>%1 Dateien</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ReadingReport.cpp"/>
        <source>%1 files are of another kind.</source>
        <translation>%1 Dateien sind von anderer Art.</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ReadingReport.cpp"/>
        <source>%1 folders</source>
        <translation>%1 Ordner</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ReadingReport.cpp"/>
        <source>%1 pictures</source>
        <translation>%1 Bilder</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ReadingReport.cpp"/>
        <source>%1 was passed over.</source>
        <translation>%1 wurde übergangen.</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ReadingReport.cpp"/>
        <source>%1 were passed over.</source>
        <translation>%1 wurden übergangen.</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ReadingReport.cpp"/>
        <source>1 file</source>
        <translation>1 Datei</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ReadingReport.cpp"/>
        <source>1 file is of another kind.</source>
        <translation>1 Datei ist von anderer Art.</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ReadingReport.cpp"/>
        <source>1 folder</source>
        <translation>1 Ordner</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ReadingReport.cpp"/>
        <source>1 picture</source>
        <translation>1 Bild</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ReadingReport.cpp"/>
        <source>These files are of another kind:</source>
        <translation>Diese Dateien sind von anderer Art:</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ReadingReport.cpp"/>
        <source>These folders could not be opened:</source>
        <translation>Diese Ordner ließen sich nicht öffnen:</translation>
    </message>
    <message>
        <location filename="../src/windows/import/ReadingReport.cpp"/>
        <source>These pictures could not be read:</source>
        <translation>Diese Bilder waren nicht lesbar:</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmDirSelect.ui"/>
        <source>&amp;Select</source>
        <translation>Wäh&amp;len</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmDirSelect.ui"/>
        <source>Choose no directory</source>
        <translation>Keinen Ordner wählen</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmDirSelect.ui"/>
        <source>Directory  Selector</source>
        <translation>Ordner wählen</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmDirSelect.ui"/>
        <source>Select</source>
        <translation>Wählen</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmDirSelect.ui"/>
        <source>Use this directory</source>
        <translation>Diesen Ordner nehmen</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmFindGraphics.cpp"/>
        <source>%1 Directories Searched: %2 Graphics Files Found</source>
        <translation>%1 Ordner durchsucht: %2 Bilddateien gefunden</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmFindGraphics.cpp"/>
        <source>%1 Results</source>
        <translation>%1 gefunden</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmFindGraphics.cpp"/>
        <source>%1 Selected</source>
        <translation>%1 gewählt</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmFindGraphics.cpp"/>
        <source>A network drive is searched only where it is chosen by itself.</source>
        <translation>Ein Netzlaufwerk wird nur durchsucht, wenn es einzeln gewählt ist.</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmFindGraphics.cpp"/>
        <source>All Drives</source>
        <translation>Alle Laufwerke</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmFindGraphics.cpp"/>
        <source>Choose where to look and press Search.
The pictures found are listed here.</source>
        <translation>Wählen Sie, wo gesucht werden soll, und drücken Sie „Suchen“.
Hier stehen dann die gefundenen Bilder.</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmFindGraphics.cpp"/>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmFindGraphics.cpp"/>
        <source>Error Searching
</source>
        <translation>Fehler beim Suchen
</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmFindGraphics.cpp"/>
        <source>File Name</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmFindGraphics.cpp"/>
        <source>Missing Selection(s)</source>
        <translation>Auswahl fehlt</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmFindGraphics.cpp"/>
        <source>No pictures were found.
Look in another place, or for other types or names.</source>
        <translation>Keine Bilder gefunden.
Suchen Sie an einem anderen Ort oder nach anderen Arten oder Namen.</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmFindGraphics.cpp"/>
        <source>No type of files is chosen.
Choose at least one, and press Search.</source>
        <translation>Keine Art von Dateien ist gewählt.
Wählen Sie mindestens eine, und drücken Sie „Suchen“.</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmFindGraphics.cpp"/>
        <source>Path</source>
        <translation>Pfad</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmFindGraphics.cpp"/>
        <source>Searching ...</source>
        <translation>Wird gesucht ...</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmFindGraphics.cpp"/>
        <source>The search was ended before a picture was found.</source>
        <translation>Die Suche endete, bevor ein Bild gefunden wurde.</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmFindGraphics.cpp"/>
        <source>You must first select the files you want to import.</source>
        <translation>Bitte wählen Sie zuerst die Dateien, die Sie importieren möchten.</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmFindGraphics.ui"/>
        <source>&amp;File Name Filter</source>
        <translation>Datei&amp;namen</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmFindGraphics.ui"/>
        <source>&amp;Import Selected</source>
        <translation>Gewählte im&amp;portieren</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmFindGraphics.ui"/>
        <source>&amp;Only Files of the Following Types</source>
        <translation>Nur Dateien dieser Ar&amp;ten</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmFindGraphics.ui"/>
        <source>*.*</source>
        <translation>*.*</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmFindGraphics.ui"/>
        <source>0 Results</source>
        <translation>0 gefunden</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmFindGraphics.ui"/>
        <source>0 Selected</source>
        <translation>0 gewählt</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmFindGraphics.ui"/>
        <source>Bring the selected pictures into the import window</source>
        <translation>Die gewählten Bilder ins Importfenster bringen</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmFindGraphics.ui"/>
        <source>Close this window and import nothing</source>
        <translation>Dieses Fenster schließen und nichts importieren</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmFindGraphics.ui"/>
        <source>End the search and keep what was found (Esc)</source>
        <translation>Die Suche beenden und das Gefundene behalten (Esc)</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmFindGraphics.ui"/>
        <source>File Name Filter</source>
        <translation>Dateinamen</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmFindGraphics.ui"/>
        <source>How the names begin, or a pattern: * is any text, ? any one character; empty finds all</source>
        <translation>Wie die Namen beginnen oder ein Muster: * ist beliebiger Text, ? ein beliebiges Zeichen; leer findet alle</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmFindGraphics.ui"/>
        <source>Import Selected</source>
        <translation>Gewählte importieren</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmFindGraphics.ui"/>
        <source>Look for pictures; the list begins anew</source>
        <translation>Bilder suchen; die Liste beginnt von vorn</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmFindGraphics.ui"/>
        <source>Only Files of the Following Types</source>
        <translation>Nur Dateien dieser Arten</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmFindGraphics.ui"/>
        <source>Search &amp;Path</source>
        <translation>Such&amp;en in</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmFindGraphics.ui"/>
        <source>Search &amp;Results</source>
        <translation>Er&amp;gebnisse</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmFindGraphics.ui"/>
        <source>Search Path</source>
        <translation>Suchen in</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmFindGraphics.ui"/>
        <source>Search Results</source>
        <translation>Ergebnisse</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmFindGraphics.ui"/>
        <source>The pictures found; select those to import (Ctrl+A selects all)</source>
        <translation>Die gefundenen Bilder; wählen Sie, welche importiert werden (Strg+A wählt alle)</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmFindGraphics.ui"/>
        <source>The types to look for; a click or the space bar chooses or leaves one out</source>
        <translation>Die gesuchten Arten; ein Klick oder die Leertaste wählt eine oder lässt sie weg</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmFindGraphics.ui"/>
        <source>Where to look: a drive, all of them, or a directory of your choice</source>
        <translation>Wo gesucht wird: ein Laufwerk, alle oder ein Ordner Ihrer Wahl</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmImportFilter.cpp"/>
        <source>Bring the selected pictures into the album</source>
        <translation>Die gewählten Bilder ins Album bringen</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmImportFilter.cpp"/>
        <source>Failed to create album.</source>
        <translation>Das Album konnte nicht angelegt werden.</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmImportFilter.cpp"/>
        <source>Picture Import Filter</source>
        <translation>Bilder importieren</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmImportFilter.cpp"/>
        <source>Picture Import Filter - </source>
        <translation>Bilder importieren - </translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmImportFilter.cpp"/>
        <source>Sa&amp;ve To Album</source>
        <translation>Im Album &amp;speichern</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmImportFilter.cpp"/>
        <source>Save To Album</source>
        <translation>Im Album speichern</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmNewAlbumWzd1.cpp"/>
        <source>This directory is reserved for NEB Slide Show.  You cannot import from it.</source>
        <translation>Dieser Ordner ist NEB Slide Show vorbehalten. Aus ihm kann nicht importiert werden.</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmNewAlbumWzd1.cpp"/>
        <source>You must enter a name for your new album.</source>
        <translation>Bitte geben Sie Ihrem neuen Album einen Namen.</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmNewAlbumWzd1.ui"/>
        <source>&amp;Enter the name for your new Photo Album</source>
        <translation>&amp;Name Ihres neuen Fotoalbums</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmNewAlbumWzd1.ui"/>
        <source>Abort album creation</source>
        <translation>Kein Album anlegen</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmNewAlbumWzd1.ui"/>
        <source>Enter the name for your new Photo Album</source>
        <translation>Name Ihres neuen Fotoalbums</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmNewAlbumWzd1.ui"/>
        <source>Initial Album &amp;Graphics Location</source>
        <translation>Ordner mit den ersten &amp;Bildern</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmNewAlbumWzd1.ui"/>
        <source>Move to the next step</source>
        <translation>Zum nächsten Schritt</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmNewAlbumWzd1.ui"/>
        <source>New Album Wizard - Step 1: Album Name</source>
        <translation>Neues Album - Schritt 1: Name des Albums</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmNewAlbumWzd1.ui"/>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmNewAlbumWzd1.ui"/>
        <source>The name under which the album will be listed; no other album may bear it</source>
        <translation>Der Name, unter dem das Album geführt wird; kein anderes Album darf ihn tragen</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmQuickShow.cpp"/>
        <source>
Do you want to play the slide show as it is?</source>
        <translation>
Möchten Sie die Diashow so abspielen, wie sie ist?</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmQuickShow.cpp"/>
        <source> %1 could not be read.</source>
        <translation> Nicht lesbar: %1.</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmQuickShow.cpp"/>
        <source> You stopped before the others.</source>
        <translation> Vor den übrigen haben Sie angehalten.</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmQuickShow.cpp"/>
        <source>%1 of %2 pictures have come into the slide show.</source>
        <translation>%1 von %2 Bildern sind in die Diashow gekommen.</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmQuickShow.cpp"/>
        <source>&amp;Stay Here</source>
        <translation>&amp;Hier bleiben</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmQuickShow.cpp"/>
        <source>Create an Album and Slide Show from the Selected Pictures</source>
        <translation>Aus den gewählten Bildern ein Album und eine Diashow machen</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmQuickShow.cpp"/>
        <source>Failed to save album.</source>
        <translation>Das Album konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmQuickShow.cpp"/>
        <source>Failed to save slide #%1
%2</source>
        <translation>Dia Nr. %1 konnte nicht gespeichert werden.
%2</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmQuickShow.cpp"/>
        <source>Failed to save slide show.</source>
        <translation>Die Diashow konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmQuickShow.cpp"/>
        <source>Failed to save slide show.
</source>
        <translation>Die Diashow konnte nicht gespeichert werden.
</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmQuickShow.cpp"/>
        <source>Pictures moved here
stay out of the slide show.</source>
        <translation>Bilder hier
bleiben aus der Diashow heraus.</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmQuickShow.cpp"/>
        <source>Sa&amp;ve</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmQuickShow.cpp"/>
        <source>There is an album of this name already, and a quick show is kept in an album of its own name.
Please choose another name.</source>
        <translation>Ein Album mit diesem Namen gibt es schon, und eine Schnell-Diashow bekommt ein Album mit ihrem eigenen Namen.
Bitte wählen Sie einen anderen.</translation>
    </message>
    <message>
        <location filename="../src/windows/import/frmQuickShow.cpp"/>
        <source>You must specify a name for the new slideshow.</source>
        <translation>Bitte geben Sie der neuen Diashow einen Namen.</translation>
    </message>
    <message>
        <location filename="../src/windows/lists/SlideReading.cpp"/>
        <source>Stopped; %1 of %2 pictures are listed.</source>
        <translation>Angehalten; %1 von %2 Bildern sind aufgeführt.</translation>
    </message>
    <message>
        <location filename="../src/windows/lists/frmPicturePopup.cpp"/>
        <source>Failed to Load the Picture.
Make sure that you have permission to use the file.</source>
        <translation>Das Bild konnte nicht geladen werden.
Prüfen Sie, ob Sie die Datei lesen dürfen.</translation>
    </message>
    <message>
        <location filename="../src/windows/lists/frmPicturePopup.cpp"/>
        <source>Load Failed</source>
        <translation>Laden fehlgeschlagen</translation>
    </message>
    <message>
        <location filename="../src/windows/lists/frmPicturePopup.ui"/>
        <source>Click to close</source>
        <translation>Klicken zum Schließen</translation>
    </message>
    <message>
        <location filename="../src/windows/lists/frmPicturePopup.ui"/>
        <source>Picture Preview</source>
        <translation>Bildvorschau</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/MailSession.cpp"/>
        <source>Print Preview Document Attached.</source>
        <translation>Das Dokument aus der Druckvorschau liegt bei.</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/PageImages.cpp"/>
        <source>There is not enough memory to show this page.</source>
        <translation>Für diese Seite reicht der Speicher nicht.</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/PageImages.cpp"/>
        <source>This page cannot be painted.</source>
        <translation>Diese Seite lässt sich nicht zeichnen.</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/PrintFiles.cpp"/>
        <source>&quot;%1&quot; is neither a PDF file (.pdf) nor a document of the program&apos;s own (.ppd).
Please choose one of these two extensions. Nothing was saved.</source>
        <translation>„%1“ ist weder eine PDF-Datei (.pdf) noch ein Dokument des Programms (.ppd).
Bitte wählen Sie eine dieser beiden Endungen. Nichts wurde gespeichert.</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/PrintFiles.cpp"/>
        <source>Save Document</source>
        <translation>Dokument speichern</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/PrintFiles.cpp"/>
        <source>The file is read-only, and that cannot be changed.</source>
        <translation>Die Datei ist schreibgeschützt, und das lässt sich nicht ändern.</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/PrintFiles.h"/>
        <source>Custom (*.ppd)|*.ppd</source>
        <translation>Eigenes Format (*.ppd)|*.ppd</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/PrintFiles.h"/>
        <source>PDF (*.pdf)|*.pdf|Custom (*.ppd)|*.ppd</source>
        <translation>PDF (*.pdf)|*.pdf|Eigenes Format (*.ppd)|*.ppd</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/PrintView.cpp"/>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/PrintView.cpp"/>
        <source>There are no pages to look at.</source>
        <translation>Es gibt keine Seiten anzusehen.</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/PrintView.cpp"/>
        <source>Whole &amp;Page|Page &amp;Width|&amp;Two Pages|Thumb&amp;nail</source>
        <translation>Ganze &amp;Seite|Seiten&amp;breite|&amp;Zwei Seiten|&amp;Miniatur</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/PrintView.h"/>
        <source>Zoom &amp;In</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/PrintView.h"/>
        <source>Zoom &amp;Out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/SheetForm.cpp"/>
        <source>%1% Completed</source>
        <translation>%1 % fertig</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/SheetForm.cpp"/>
        <source>Stopped; there is no preview.</source>
        <translation>Angehalten; es gibt keine Vorschau.</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/SheetForm.cpp"/>
        <source>There are no slides to print.</source>
        <translation>Es gibt keine Dias zu drucken.</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/SheetForm.cpp"/>
        <source>You must select an Album to print.</source>
        <translation>Bitte wählen Sie ein Album zum Drucken.</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/SheetForm.cpp"/>
        <source>page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/SheetForm.cpp"/>
        <source>pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/SheetForm.ui"/>
        <source>&amp;Captions under the pictures</source>
        <translation>&amp;Bildtexte unter den Bildern</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/SheetForm.ui"/>
        <source>&amp;Landscape</source>
        <translation>&amp;Querformat</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/SheetForm.ui"/>
        <source>&amp;Maintain the pictures&apos; proportions</source>
        <translation>Seiten&amp;verhältnis der Bilder beibehalten</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/SheetForm.ui"/>
        <source>&amp;Print Preview</source>
        <translation>Dr&amp;uckvorschau</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/SheetForm.ui"/>
        <source>&amp;Rows Per Page</source>
        <translation>Reih&amp;en je Seite</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/SheetForm.ui"/>
        <source>&amp;Slides Per Row</source>
        <translation>Dia&amp;s je Reihe</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/SheetForm.ui"/>
        <source>3</source>
        <translation>3</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/SheetForm.ui"/>
        <source>4</source>
        <translation>4</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/SheetForm.ui"/>
        <source>A sheet for each slide, with the same picture in every place of it</source>
        <translation>Ein Blatt für jedes Dia, mit demselben Bild an jedem Platz</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/SheetForm.ui"/>
        <source>Captions under the pictures</source>
        <translation>Bildtexte unter den Bildern</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/SheetForm.ui"/>
        <source>Drawing of the page</source>
        <translation>Skizze der Seite</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/SheetForm.ui"/>
        <source>How many pictures stand side by side (Up and Down change it)</source>
        <translation>Wie viele Bilder nebeneinander stehen (Auf und Ab ändern es)</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/SheetForm.ui"/>
        <source>How many rows stand on a page (Up and Down change it)</source>
        <translation>Wie viele Reihen auf einer Seite stehen (Auf und Ab ändern es)</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/SheetForm.ui"/>
        <source>Landscape</source>
        <translation>Querformat</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/SheetForm.ui"/>
        <source>Look at the pages, and print them from there</source>
        <translation>Die Seiten ansehen und von dort drucken</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/SheetForm.ui"/>
        <source>Maintain the pictures&apos; proportions</source>
        <translation>Seitenverhältnis der Bilder beibehalten</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/SheetForm.ui"/>
        <source>On the pages as well</source>
        <translation>Außerdem auf den Seiten</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/SheetForm.ui"/>
        <source>Otherwise each picture fills its place on the page</source>
        <translation>Sonst füllt jedes Bild seinen Platz auf der Seite</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/SheetForm.ui"/>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/SheetForm.ui"/>
        <source>Page &amp;numbers</source>
        <translation>Seiten&amp;zahlen</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/SheetForm.ui"/>
        <source>Page numbers</source>
        <translation>Seitenzahlen</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/SheetForm.ui"/>
        <source>Por&amp;trait</source>
        <translation>&amp;Hochformat</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/SheetForm.ui"/>
        <source>Portrait</source>
        <translation>Hochformat</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/SheetForm.ui"/>
        <source>Print Preview</source>
        <translation>Druckvorschau</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/SheetForm.ui"/>
        <source>Rows Per Page</source>
        <translation>Reihen je Seite</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/SheetForm.ui"/>
        <source>Slide Sh&amp;ow</source>
        <translation>Diasho&amp;w</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/SheetForm.ui"/>
        <source>Slides Per Row</source>
        <translation>Dias je Reihe</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/SheetForm.ui"/>
        <source>Stop composing the pages</source>
        <translation>Das Zusammenstellen der Seiten anhalten</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/SheetForm.ui"/>
        <source>The album that is printed</source>
        <translation>Das Album, das gedruckt wird</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/SheetForm.ui"/>
        <source>The album&apos;s name at the &amp;foot</source>
        <translation>Name des Albums am &amp;Fuß</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/SheetForm.ui"/>
        <source>The album&apos;s name at the foot</source>
        <translation>Name des Albums am Fuß</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/SheetForm.ui"/>
        <source>The caption of each slide under its picture</source>
        <translation>Der Bildtext jedes Dias unter seinem Bild</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/SheetForm.ui"/>
        <source>The name of the album at the foot of each page</source>
        <translation>Der Name des Albums am Fuß jeder Seite</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/SheetForm.ui"/>
        <source>The number of each page at its foot</source>
        <translation>Die Nummer jeder Seite an ihrem Fuß</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/SheetForm.ui"/>
        <source>The page lies on its long side</source>
        <translation>Die Seite liegt auf ihrer langen Kante</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/SheetForm.ui"/>
        <source>The page stands on its short side</source>
        <translation>Die Seite steht auf ihrer kurzen Kante</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/SheetForm.ui"/>
        <source>The slide show that is printed</source>
        <translation>Die Diashow, die gedruckt wird</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/SheetForm.ui"/>
        <source>Til&amp;e each slide across an entire sheet</source>
        <translation>Ein ganzes B&amp;latt je Dia</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/SheetForm.ui"/>
        <source>Tile each slide across an entire sheet</source>
        <translation>Ein ganzes Blatt je Dia</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintAlbum.cpp"/>
        <source>Print Album</source>
        <translation>Album drucken</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintAlbum.cpp"/>
        <source>Print Slides</source>
        <translation>Dias drucken</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintPreview.cpp"/>
        <source>&amp;View</source>
        <comment>a menu</comment>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintPreview.cpp"/>
        <source>Print Preview - %1</source>
        <translation>Druckvorschau - %1</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintPreview.ui"/>
        <source>&amp;Email</source>
        <translation>&amp;E-Mail</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintPreview.ui"/>
        <source>&amp;Load</source>
        <translation>&amp;Laden</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintPreview.ui"/>
        <source>&amp;Mail...</source>
        <translation>Als E-&amp;Mail...</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintPreview.ui"/>
        <source>&amp;Open...</source>
        <translation>Ö&amp;ffnen...</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintPreview.ui"/>
        <source>&amp;Save...</source>
        <translation>&amp;Speichern...</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintPreview.ui"/>
        <source>&amp;Zoom</source>
        <translation>&amp;Zoom</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintPreview.ui"/>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintPreview.ui"/>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintPreview.ui"/>
        <source>Ctrl+E</source>
        <translation>Ctrl+E</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintPreview.ui"/>
        <source>Ctrl+O</source>
        <translation>Ctrl+O</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintPreview.ui"/>
        <source>Ctrl+P</source>
        <translation>Ctrl+P</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintPreview.ui"/>
        <source>Ctrl+S</source>
        <translation>Ctrl+S</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintPreview.ui"/>
        <source>Ctrl+W</source>
        <translation>Ctrl+W</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintPreview.ui"/>
        <source>Email Document</source>
        <translation>Dokument als E-Mail senden</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintPreview.ui"/>
        <source>Exit Document Print Preview</source>
        <translation>Druckvorschau schließen</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintPreview.ui"/>
        <source>Load Document</source>
        <translation>Dokument laden</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintPreview.ui"/>
        <source>Move to the 1st Page</source>
        <translation>Zur ersten Seite</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintPreview.ui"/>
        <source>Move to the Last Page</source>
        <translation>Zur letzten Seite</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintPreview.ui"/>
        <source>Next Page</source>
        <translation>Nächste Seite</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintPreview.ui"/>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintPreview.ui"/>
        <source>Prev Page</source>
        <translation>Vorige Seite</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintPreview.ui"/>
        <source>Print Document</source>
        <translation>Dokument drucken</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintPreview.ui"/>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintPreview.ui"/>
        <source>Zoom In/Out on Document</source>
        <translation>Dokument vergrößern oder verkleinern</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintPreview.ui"/>
        <source>of</source>
        <translation>von</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintPreviewOut.cpp"/>
        <source>

Print all the same?</source>
        <translation>

Trotzdem drucken?</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintPreviewOut.cpp"/>
        <source>Could not access printer.</source>
        <translation>Der Drucker ist nicht erreichbar.</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintPreviewOut.cpp"/>
        <source>Destination Email Address Entry</source>
        <translation>E-Mail-Adresse des Empfängers</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintPreviewOut.cpp"/>
        <source>Enter the Email Address to Send To:</source>
        <translation>Geben Sie die E-Mail-Adresse des Empfängers ein:</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintPreviewOut.cpp"/>
        <source>KIP you are supposed to have handled this error!</source>
        <translation>Ein unerwarteter Fehler ist aufgetreten!</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintPreviewOut.cpp"/>
        <source>Loading ...</source>
        <translation>Wird geladen ...</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintPreviewOut.cpp"/>
        <source>Printing ...</source>
        <translation>Wird gedruckt ...</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintPreviewOut.cpp"/>
        <source>Save writes the pages to a PDF instead.</source>
        <translation>„Speichern“ schreibt die Seiten stattdessen in eine PDF-Datei.</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintPreviewOut.cpp"/>
        <source>Saved: %1</source>
        <translation>Gespeichert: %1</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintPreviewOut.cpp"/>
        <source>Saving ...</source>
        <translation>Wird gespeichert ...</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintPreviewOut.cpp"/>
        <source>Stopped; nothing was saved.</source>
        <translation>Angehalten; nichts wurde gespeichert.</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintPreviewOut.cpp"/>
        <source>Stopped; nothing was sent.</source>
        <translation>Angehalten; nichts wurde gesendet.</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintPreviewOut.cpp"/>
        <source>The Printer is not responding.</source>
        <translation>Der Drucker antwortet nicht.</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintPreviewOut.cpp"/>
        <source>The User Canceled the print job.</source>
        <translation>Der Druckauftrag wurde vom Benutzer abgebrochen.</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintPreviewOut.cpp"/>
        <source>The document was handed over for printing.</source>
        <translation>Das Dokument wurde zum Drucken übergeben.</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintPreviewOut.cpp"/>
        <source>The message was handed to the mail program.</source>
        <translation>Die Nachricht wurde dem E-Mail-Programm übergeben.</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintPreviewOut.cpp"/>
        <source>There is no mail program that takes the message.
The document is in
%1
and can be attached to a message from there.</source>
        <translation>Es gibt kein E-Mail-Programm, das die Nachricht annimmt.
Das Dokument liegt in
%1
und lässt sich von dort an eine Nachricht anhängen.</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintSheet.cpp"/>
        <source>copies</source>
        <translation>Abzüge</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintSheet.cpp"/>
        <source>copy</source>
        <translation>Abzug</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintSheet.ui"/>
        <source>&amp;Copies Per Row</source>
        <translation>Ab&amp;züge je Reihe</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintSheet.ui"/>
        <source>&amp;Maintain the picture&apos;s proportions</source>
        <translation>Seiten&amp;verhältnis des Bildes beibehalten</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintSheet.ui"/>
        <source>Copies Per Row</source>
        <translation>Abzüge je Reihe</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintSheet.ui"/>
        <source>How many copies stand side by side (Up and Down change it)</source>
        <translation>Wie viele Abzüge nebeneinander stehen (Auf und Ab ändern es)</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintSheet.ui"/>
        <source>How many rows stand on the page (Up and Down change it)</source>
        <translation>Wie viele Reihen auf der Seite stehen (Auf und Ab ändern es)</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintSheet.ui"/>
        <source>Look at the page, and print it from there</source>
        <translation>Die Seite ansehen und von dort drucken</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintSheet.ui"/>
        <source>Maintain the picture&apos;s proportions</source>
        <translation>Seitenverhältnis des Bildes beibehalten</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintSheet.ui"/>
        <source>Otherwise the picture fills each place on the page</source>
        <translation>Sonst füllt das Bild jeden Platz auf der Seite</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintSheet.ui"/>
        <source>Print Slide Sheet</source>
        <translation>Blatt von einem Dia drucken</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintSheet.ui"/>
        <source>The picture that is printed</source>
        <translation>Das Bild, das gedruckt wird</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintSlide.cpp"/>
        <source>%1 by %2 inches</source>
        <translation>%1 mal %2 Zoll</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintSlide.ui"/>
        <source>&amp;Height (inches)</source>
        <translation>H&amp;öhe (Zoll)</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintSlide.ui"/>
        <source>&amp;Width (inches)</source>
        <translation>&amp;Breite (Zoll)</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintSlide.ui"/>
        <source>6</source>
        <translation>6</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintSlide.ui"/>
        <source>8</source>
        <translation>8</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintSlide.ui"/>
        <source>Height in inches</source>
        <translation>Höhe in Zoll</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintSlide.ui"/>
        <source>How high the picture is printed (Up and Down change it)</source>
        <translation>Wie hoch das Bild gedruckt wird (Auf und Ab ändern es)</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintSlide.ui"/>
        <source>How wide the picture is printed (Up and Down change it)</source>
        <translation>Wie breit das Bild gedruckt wird (Auf und Ab ändern es)</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintSlide.ui"/>
        <source>Print Slide</source>
        <translation>Dia drucken</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintSlide.ui"/>
        <source>Width and height follow each other</source>
        <translation>Breite und Höhe folgen einander</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintSlide.ui"/>
        <source>Width in inches</source>
        <translation>Breite in Zoll</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintSlideShow.cpp"/>
        <source>Print Slide Show</source>
        <translation>Diashow drucken</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintSlideShow.cpp"/>
        <source>The name of the slide show at the foot of each page</source>
        <translation>Der Name der Diashow am Fuß jeder Seite</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintSlideShow.cpp"/>
        <source>The slide show&apos;s name at the &amp;foot</source>
        <translation>Name der Diashow am &amp;Fuß</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintSlideShow.cpp"/>
        <source>This album has no slide show yet. The Slide Show Manager makes one.</source>
        <translation>Dieses Album hat noch keine Diashow. Die Diashow-Verwaltung macht eine.</translation>
    </message>
    <message>
        <location filename="../src/windows/printing/frmPrintSlideShow.cpp"/>
        <source>You must select a Slide Show to print.</source>
        <translation>Bitte wählen Sie eine Diashow zum Drucken.</translation>
    </message>
    <message>
        <location filename="../src/windows/recorder/LevelMeter.cpp"/>
        <source>%1 percent</source>
        <translation>%1 Prozent</translation>
    </message>
    <message>
        <location filename="../src/windows/recorder/frmSoundRecorder.cpp"/>
        <source>%1, %2 left</source>
        <translation>%1, noch %2</translation>
    </message>
    <message>
        <location filename="../src/windows/recorder/frmSoundRecorder.cpp"/>
        <source>Are you sure you want to discard the recording?</source>
        <translation>Möchten Sie die Aufnahme wirklich verwerfen?</translation>
    </message>
    <message>
        <location filename="../src/windows/recorder/frmSoundRecorder.cpp"/>
        <source>Closing the loudspeakers...</source>
        <translation>Lautsprecher werden geschlossen...</translation>
    </message>
    <message>
        <location filename="../src/windows/recorder/frmSoundRecorder.cpp"/>
        <source>Closing the microphone...</source>
        <translation>Mikrofon wird geschlossen...</translation>
    </message>
    <message>
        <location filename="../src/windows/recorder/frmSoundRecorder.cpp"/>
        <source>Nothing was recorded.</source>
        <translation>Nichts wurde aufgenommen.</translation>
    </message>
    <message>
        <location filename="../src/windows/recorder/frmSoundRecorder.cpp"/>
        <source>Opening the loudspeakers...</source>
        <translation>Lautsprecher werden geöffnet...</translation>
    </message>
    <message>
        <location filename="../src/windows/recorder/frmSoundRecorder.cpp"/>
        <source>Opening the microphone...</source>
        <translation>Mikrofon wird geöffnet...</translation>
    </message>
    <message>
        <location filename="../src/windows/recorder/frmSoundRecorder.cpp"/>
        <source>Playing</source>
        <translation>Wiedergabe</translation>
    </message>
    <message>
        <location filename="../src/windows/recorder/frmSoundRecorder.cpp"/>
        <source>Press Record and speak.</source>
        <translation>Drücken Sie „Aufnehmen“, und sprechen Sie.</translation>
    </message>
    <message>
        <location filename="../src/windows/recorder/frmSoundRecorder.cpp"/>
        <source>Recorded</source>
        <translation>Aufgenommen</translation>
    </message>
    <message>
        <location filename="../src/windows/recorder/frmSoundRecorder.cpp"/>
        <source>Recorded: the 20 seconds are full.</source>
        <translation>Aufgenommen: Die 20 Sekunden sind voll.</translation>
    </message>
    <message>
        <location filename="../src/windows/recorder/frmSoundRecorder.cpp"/>
        <source>Recording</source>
        <translation>Aufnahme</translation>
    </message>
    <message>
        <location filename="../src/windows/recorder/frmSoundRecorder.cpp"/>
        <source>Saving...</source>
        <translation>Wird gespeichert...</translation>
    </message>
    <message>
        <location filename="../src/windows/recorder/frmSoundRecorder.cpp"/>
        <source>Waiting for the microphone</source>
        <translation>Warten auf das Mikrofon</translation>
    </message>
    <message>
        <location filename="../src/windows/recorder/frmSoundRecorder.ui"/>
        <source>&amp;Record</source>
        <translation>Auf&amp;nehmen</translation>
    </message>
    <message>
        <location filename="../src/windows/recorder/frmSoundRecorder.ui"/>
        <source>&amp;Volume</source>
        <translation>&amp;Lautstärke</translation>
    </message>
    <message>
        <location filename="../src/windows/recorder/frmSoundRecorder.ui"/>
        <source>How loud the sound is at the moment</source>
        <translation>Wie laut der Ton gerade ist</translation>
    </message>
    <message>
        <location filename="../src/windows/recorder/frmSoundRecorder.ui"/>
        <source>Play the recorded sound</source>
        <translation>Den aufgenommenen Ton abspielen</translation>
    </message>
    <message>
        <location filename="../src/windows/recorder/frmSoundRecorder.ui"/>
        <source>Record</source>
        <translation>Aufnehmen</translation>
    </message>
    <message>
        <location filename="../src/windows/recorder/frmSoundRecorder.ui"/>
        <source>S&amp;top</source>
        <translation>S&amp;topp</translation>
    </message>
    <message>
        <location filename="../src/windows/recorder/frmSoundRecorder.ui"/>
        <source>Save the current recording</source>
        <translation>Die Aufnahme speichern</translation>
    </message>
    <message>
        <location filename="../src/windows/recorder/frmSoundRecorder.ui"/>
        <source>Slide Sound Recorder</source>
        <translation>Ton zum Dia aufnehmen</translation>
    </message>
    <message>
        <location filename="../src/windows/recorder/frmSoundRecorder.ui"/>
        <source>Sound level</source>
        <translation>Tonpegel</translation>
    </message>
    <message>
        <location filename="../src/windows/recorder/frmSoundRecorder.ui"/>
        <source>Start Recording</source>
        <translation>Aufnahme beginnen</translation>
    </message>
    <message>
        <location filename="../src/windows/recorder/frmSoundRecorder.ui"/>
        <source>Stop Recording/Playing</source>
        <translation>Aufnahme oder Wiedergabe anhalten</translation>
    </message>
    <message>
        <location filename="../src/windows/recorder/frmSoundRecorder.ui"/>
        <source>Volume</source>
        <translation>Lautstärke</translation>
    </message>
    <message>
        <location filename="../src/windows/recorder/frmSoundRecorder.ui"/>
        <source>Volume to record at</source>
        <translation>Lautstärke der Aufnahme</translation>
    </message>
    <message>
        <location filename="../src/windows/rehearsal/RehearsalTable.cpp"/>
        <source>Clip</source>
        <translation>Clip</translation>
    </message>
    <message>
        <location filename="../src/windows/rehearsal/RehearsalTable.cpp"/>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <location filename="../src/windows/rehearsal/RehearsalTable.cpp"/>
        <source>Its sound</source>
        <translation>Sein Ton</translation>
    </message>
    <message>
        <location filename="../src/windows/rehearsal/RehearsalTable.cpp"/>
        <source>Length</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <location filename="../src/windows/rehearsal/RehearsalTable.cpp"/>
        <source>Notes</source>
        <translation>Hinweise</translation>
    </message>
    <message>
        <location filename="../src/windows/rehearsal/RehearsalTable.cpp"/>
        <source>Problems</source>
        <translation>Probleme</translation>
    </message>
    <message>
        <location filename="../src/windows/rehearsal/RehearsalTable.cpp"/>
        <source>Track</source>
        <translation>Spur</translation>
    </message>
    <message>
        <location filename="../src/windows/rehearsal/TimeLine.cpp"/>
        <source>Slide %1 at %2</source>
        <translation>Dia %1 bei %2</translation>
    </message>
    <message>
        <location filename="../src/windows/rehearsal/frmRehearsal.cpp"/>
        <source>No slide of the show comes up.</source>
        <translation>Kein Dia der Diashow kommt zum Zug.</translation>
    </message>
    <message>
        <location filename="../src/windows/rehearsal/frmRehearsal.cpp"/>
        <source>Rehearsal - %1</source>
        <translation>Probelauf - %1</translation>
    </message>
    <message>
        <location filename="../src/windows/rehearsal/frmRehearsal.cpp"/>
        <source>The rehearsal was stopped.</source>
        <translation>Der Probelauf wurde angehalten.</translation>
    </message>
    <message>
        <location filename="../src/windows/rehearsal/frmRehearsal.cpp"/>
        <source>What is to be mended</source>
        <translation>Was in Ordnung zu bringen ist</translation>
    </message>
    <message>
        <location filename="../src/windows/rehearsal/frmRehearsal.ui"/>
        <source>&amp;Rehearse Again</source>
        <translation>Noch ein&amp;mal proben</translation>
    </message>
    <message>
        <location filename="../src/windows/rehearsal/frmRehearsal.ui"/>
        <source>&amp;Time line</source>
        <translation>&amp;Zeitachse</translation>
    </message>
    <message>
        <location filename="../src/windows/rehearsal/frmRehearsal.ui"/>
        <source>C&amp;ue sheet</source>
        <translation>Ab&amp;laufplan</translation>
    </message>
    <message>
        <location filename="../src/windows/rehearsal/frmRehearsal.ui"/>
        <source>Cue sheet</source>
        <translation>Ablaufplan</translation>
    </message>
    <message>
        <location filename="../src/windows/rehearsal/frmRehearsal.ui"/>
        <source>How many slides have come up</source>
        <translation>Wie viele Dias schon an der Reihe waren</translation>
    </message>
    <message>
        <location filename="../src/windows/rehearsal/frmRehearsal.ui"/>
        <source>Pri&amp;nt...</source>
        <translation>Druc&amp;ken...</translation>
    </message>
    <message>
        <location filename="../src/windows/rehearsal/frmRehearsal.ui"/>
        <source>Print the cue sheet (Ctrl+P)</source>
        <translation>Den Ablaufplan drucken (Strg+P)</translation>
    </message>
    <message>
        <location filename="../src/windows/rehearsal/frmRehearsal.ui"/>
        <source>Pro&amp;blems and notes</source>
        <translation>Pro&amp;bleme und Hinweise</translation>
    </message>
    <message>
        <location filename="../src/windows/rehearsal/frmRehearsal.ui"/>
        <source>Problems, which somebody should mend, and notes, which may well be meant; a double click or Enter goes to the slide</source>
        <translation>Probleme, die jemand beheben sollte, und Hinweise, die durchaus gewollt sein können; ein Doppelklick oder die Eingabetaste führt zum Dia</translation>
    </message>
    <message>
        <location filename="../src/windows/rehearsal/frmRehearsal.ui"/>
        <source>Rehearsal</source>
        <translation>Probelauf</translation>
    </message>
    <message>
        <location filename="../src/windows/rehearsal/frmRehearsal.ui"/>
        <source>Rehearse again</source>
        <translation>Noch einmal proben</translation>
    </message>
    <message>
        <location filename="../src/windows/rehearsal/frmRehearsal.ui"/>
        <source>Rehearse the show once more: files and settings may be others by now</source>
        <translation>Die Diashow noch einmal proben: Dateien und Einstellungen können inzwischen andere sein</translation>
    </message>
    <message>
        <location filename="../src/windows/rehearsal/frmRehearsal.ui"/>
        <source>Stop the rehearsal (Esc)</source>
        <translation>Den Probelauf anhalten (Esc)</translation>
    </message>
    <message>
        <location filename="../src/windows/rehearsal/frmRehearsal.ui"/>
        <source>The slides with the tracks and clips that are heard; a double click or Enter goes to the slide in the Slide Show Manager</source>
        <translation>Die Dias mit den Spuren und Clips, die zu hören sind; ein Doppelklick oder die Eingabetaste führt zum Dia in der Diashow-Verwaltung</translation>
    </message>
    <message>
        <location filename="../src/windows/rehearsal/frmRehearsal.ui"/>
        <source>Time line</source>
        <translation>Zeitachse</translation>
    </message>
    <message>
        <location filename="../src/windows/rehearsal/frmRehearsal.ui"/>
        <source>What comes up when; a double click or Enter goes to the slide in the Slide Show Manager</source>
        <translation>Was wann kommt; ein Doppelklick oder die Eingabetaste führt zum Dia in der Diashow-Verwaltung</translation>
    </message>
    <message>
        <location filename="../src/windows/show/ShowDesk.cpp"/>
        <source>A slide show is running</source>
        <translation>Eine Diashow läuft</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPopup.cpp"/>
        <source>Goto End</source>
        <translation>Zum Ende</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPopup.cpp"/>
        <source>Goto Start</source>
        <translation>Zum Anfang</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPopup.cpp"/>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPopup.cpp"/>
        <source>Previous</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPopup.cpp"/>
        <source>Resume</source>
        <translation>Weiterspielen</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPopup.cpp"/>
        <source>Slide show commands</source>
        <translation>Befehle der Diashow</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.cpp"/>
        <source>%1 (not connected)</source>
        <translation>%1 (nicht angeschlossen)</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.cpp"/>
        <source>Delay</source>
        <translation>Pause</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.cpp"/>
        <source>No slide show in this album</source>
        <translation>Keine Diashow in diesem Album</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.cpp"/>
        <source>Step</source>
        <translation>Schritt</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.cpp"/>
        <source>The largest</source>
        <translation>Der größte</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.cpp"/>
        <source>The program&apos;s own</source>
        <translation>Der des Programms</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.cpp"/>
        <source>There is no album yet</source>
        <translation>Es gibt noch kein Album</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.cpp"/>
        <source>These settings are kept.</source>
        <translation>Diese Einstellungen sind gespeichert.</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.ui"/>
        <source>&amp;Apply</source>
        <translation>&amp;Übernehmen</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.ui"/>
        <source>&amp;Effects to use</source>
        <translation>Effek&amp;te zur Auswahl</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.ui"/>
        <source>&amp;Next Slide</source>
        <translation>&amp;Nächstes Dia</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.ui"/>
        <source>&amp;Only Show Effects &lt;= the Selected Effect Level</source>
        <translation>&amp;Effekte bis zur gewählten Stufe zeigen</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.ui"/>
        <source>&amp;Preview Selected Effect</source>
        <translation>Effekt &amp;vorführen</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.ui"/>
        <source>&amp;Select All</source>
        <translation>&amp;Alle ankreuzen</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.ui"/>
        <source>&amp;Use the Selected Effects</source>
        <translation>Angekreuzte Effe&amp;kte zeigen</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.ui"/>
        <source>Active Slide Show</source>
        <translation>Aktive Diashow</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.ui"/>
        <source>An effect is drawn in steps. Step: how far each goes, in percent of the whole way, 1 to 100; small ones look smoother. Delay: the time from one step to the next in ten-thousandths of a second, 0 to 1000; long ones look slower</source>
        <translation>Ein Effekt wird in Schritten gezeichnet. Schritt: wie weit jeder geht, in Prozent des ganzen Weges, 1 bis 100; kleine wirken flüssiger. Pause: die Zeit von einem Schritt zum nächsten in Zehntausendstelsekunden, 0 bis 1000; lange wirken langsamer</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.ui"/>
        <source>Calm effects that every computer shows smoothly</source>
        <translation>Ruhige Effekte, die jeder Computer flüssig zeigt</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.ui"/>
        <source>Close this window; what has not been applied is not kept</source>
        <translation>Dieses Fenster schließen; was nicht übernommen ist, wird nicht gespeichert</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.ui"/>
        <source>Effect Level</source>
        <translation>Stufe der Effekte</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.ui"/>
        <source>Effects</source>
        <translation>Effekte</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.ui"/>
        <source>Effects that ask for a fast computer</source>
        <translation>Effekte, die einen schnellen Computer verlangen</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.ui"/>
        <source>Effects to use</source>
        <translation>Effekte zur Auswahl</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.ui"/>
        <source>Effects with more movement</source>
        <translation>Effekte mit mehr Bewegung</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.ui"/>
        <source>How long a slide stays on the screen: 4 seconds or more</source>
        <translation>Wie lange ein Dia zu sehen ist: mindestens 4 Sekunden</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.ui"/>
        <source>Keep &amp;where a picture was taken</source>
        <translation>Aufnahmeort &amp;mitnehmen</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.ui"/>
        <source>Keep these settings; the window stays</source>
        <translation>Diese Einstellungen speichern; das Fenster bleibt</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.ui"/>
        <source>Keep where a picture was taken</source>
        <translation>Aufnahmeort mitnehmen</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.ui"/>
        <source>Next Slide</source>
        <translation>Nächstes Dia</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.ui"/>
        <source>No effects: one picture takes the place of the other at once</source>
        <translation>Keine Effekte: Ein Bild tritt sofort an die Stelle des anderen</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.ui"/>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.ui"/>
        <source>Only Show Effects &lt;= the Selected Effect Level</source>
        <translation>Effekte bis zur gewählten Stufe zeigen</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.ui"/>
        <source>Preview Selected Effect</source>
        <translation>Effekt vorführen</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.ui"/>
        <source>Preview of an effect</source>
        <translation>Vorschau eines Effekts</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.ui"/>
        <source>Run the current effect of the list above</source>
        <translation>Den gewählten Effekt der Liste darüber vorführen</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.ui"/>
        <source>Sc&amp;reen</source>
        <translation>Bi&amp;ldschirm</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.ui"/>
        <source>Screen</source>
        <translation>Bildschirm</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.ui"/>
        <source>Se&amp;lect None</source>
        <translation>Keinen ankreu&amp;zen</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.ui"/>
        <source>Select All</source>
        <translation>Alle ankreuzen</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.ui"/>
        <source>Select None</source>
        <translation>Keinen ankreuzen</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.ui"/>
        <source>Slide &amp;Timeout (Seconds)</source>
        <translation>Dauer je Dia (&amp;Sekunden)</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.ui"/>
        <source>Slide S&amp;how</source>
        <translation>Diash&amp;ow</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.ui"/>
        <source>Slide Timeout (Seconds)</source>
        <translation>Dauer je Dia (Sekunden)</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.ui"/>
        <source>Slide shows use the effects that are ticked in the list, in turn</source>
        <translation>Diashows zeigen der Reihe nach die Effekte, die in der Liste angekreuzt sind</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.ui"/>
        <source>Slide shows use, one after the other, all effects of the level that the slider shows and of the levels to the left of it</source>
        <translation>Diashows zeigen nacheinander alle Effekte der Stufe am Schieberegler und der Stufen links davon</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.ui"/>
        <source>Step &amp; Delay to use for each effect level</source>
        <translation>Schritt und Pause für jede Stufe</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.ui"/>
        <source>Step &amp;&amp; &amp;Delay to use for each effect level</source>
        <translation>Schritt und &amp;Pause für jede Stufe</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.ui"/>
        <source>Take the tick off every effect</source>
        <translation>Das Kreuz bei allen Effekten entfernen</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.ui"/>
        <source>The active slide show: the one that the main window plays</source>
        <translation>Die aktive Diashow: die, welche das Hauptfenster abspielt</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.ui"/>
        <source>The album of the active slide show</source>
        <translation>Das Album der aktiven Diashow</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.ui"/>
        <source>The effect runs here with the step and delay of the table below</source>
        <translation>Der Effekt läuft hier mit Schritt und Pause aus der Tabelle darunter</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.ui"/>
        <source>The heaviest effects that a slide show uses. None: pictures change at once. Lite: calm ones that every computer shows smoothly. Normal: more movement. Intense: those that ask for a fast computer</source>
        <translation>Die stärksten Effekte, die eine Diashow zeigt. Keine: Bilder wechseln sofort. Ruhig: solche, die jeder Computer flüssig zeigt. Normal: mehr Bewegung. Bewegt: solche, die einen schnellen Computer verlangen</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.ui"/>
        <source>The place that a camera or a phone has noted stays in the album&apos;s picture, with date, camera and description</source>
        <translation>Der Ort, den Kamera oder Telefon vermerkt haben, bleibt im Bild des Albums, mit Datum, Kamera und Beschreibung</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.ui"/>
        <source>The screen that slide shows fill; one that is not connected waits until it is</source>
        <translation>Der Bildschirm, den Diashows füllen; einer, der nicht angeschlossen ist, wartet, bis er es ist</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.ui"/>
        <source>The slide show that Play Slide Show in the menu Slide Show begins</source>
        <translation>Die Diashow, die „Diashow abspielen“ im Menü Diashow beginnt</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.ui"/>
        <source>The slide with which the active slide show goes on; 0 begins at the first</source>
        <translation>Das Dia, mit dem die aktive Diashow weitergeht; 0 beginnt beim ersten</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.ui"/>
        <source>Tick every effect</source>
        <translation>Alle Effekte ankreuzen</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.ui"/>
        <source>Tick the effects to use; double-click a name to see it; type letters to find one</source>
        <translation>Kreuzen Sie Effekte an; ein Doppelklick auf einen Namen führt ihn vor; Buchstaben tippen findet einen</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmPreferences.ui"/>
        <source>Use the Selected Effects</source>
        <translation>Angekreuzte Effekte zeigen</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmSlideShowProjector.cpp"/>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmSlideShowProjector.cpp"/>
        <source>Paused. %1</source>
        <translation>Angehalten. %1</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmSlideShowProjector.ui"/>
        <source>Caption of the slide</source>
        <translation>Bildtext des Dias</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmSpeedTest.cpp"/>
        <source>&amp;Skip</source>
        <translation>&amp;Auslassen</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmSpeedTest.cpp"/>
        <source>&amp;Test Now</source>
        <translation>Jetzt &amp;messen</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmSpeedTest.cpp"/>
        <source>It runs some transitions on the full screen to find out which of them this computer shows smoothly. That takes a minute or two; Esc ends it at any time.

Without it, slide shows go by settings that suit most computers. You can run it later: Slide Show, Test Graphics Speed.</source>
        <translation>Dazu laufen einige Übergänge auf dem ganzen Bildschirm, um herauszufinden, welche dieser Computer flüssig zeigt. Das dauert eine oder zwei Minuten; Esc beendet es jederzeit.

Ohne Messung gelten für Diashows Einstellungen, die den meisten Computern liegen. Sie können sie später nachholen: Diashow, Grafiktempo messen.</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmSpeedTest.cpp"/>
        <source>Missing Component, Speed Test aborted.</source>
        <translation>Ein Bestandteil fehlt, die Messung wurde abgebrochen.</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmSpeedTest.cpp"/>
        <source>NEB Slide Show will now test your graphics speed.

</source>
        <translation>NEB Slide Show misst jetzt Ihr Grafiktempo.

</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmSpeedTest.cpp"/>
        <source>Speed Test Notification</source>
        <translation>Messung des Grafiktempos</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmSpeedTest.cpp"/>
        <source>Your system may be too slow to properly show effects.
Setting to lowest settings.</source>
        <translation>Ihr Computer ist vielleicht zu langsam, um Effekte gut zu zeigen.
Es gelten die kleinsten Einstellungen.</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmSpeedTest.ui"/>
        <source>Esc leaves the test</source>
        <translation>Esc beendet die Messung</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmSpeedTest.ui"/>
        <source>Test picture</source>
        <translation>Testbild</translation>
    </message>
    <message>
        <location filename="../src/windows/show/frmSpeedTest.ui"/>
        <source>Testing Graphics Performance</source>
        <translation>Grafiktempo wird gemessen</translation>
    </message>
    <message>
        <location filename="../src/windows/show/modSlideShows.cpp"/>
        <source>You must first select a Slide Show to View.</source>
        <translation>Bitte wählen Sie zuerst eine Diashow zum Ansehen.</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/ClipPlayer.cpp"/>
        <source>Play the sound of this slide (Alt+K)</source>
        <translation>Den Ton dieses Dias abspielen (Alt+K)</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/ClipPlayer.cpp"/>
        <source>Sound Missing</source>
        <translation>Ton fehlt</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/ClipPlayer.cpp"/>
        <source>Stop the sound of this slide (Alt+K)</source>
        <translation>Den Ton dieses Dias anhalten (Alt+K)</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/ClipPlayer.cpp"/>
        <source>The sound of this slide cannot be found.</source>
        <translation>Der Ton dieses Dias ist nicht zu finden.</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/FindRow.cpp"/>
        <source> %1 would have become too long and stay.</source>
        <translation> %1 wären zu lang geworden und bleiben.</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/FindRow.cpp"/>
        <source>&amp;Match case and accents</source>
        <translation>&amp;Groß- und Kleinschreibung, Akzente</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/FindRow.cpp"/>
        <source>&amp;Replace</source>
        <translation>Ers&amp;etzen</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/FindRow.cpp"/>
        <source>Caption %1 of %2</source>
        <translation>Bildtext %1 von %2</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/FindRow.cpp"/>
        <source>Caption %1 of %2, from the top again</source>
        <translation>Bildtext %1 von %2, wieder von oben</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/FindRow.cpp"/>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/FindRow.cpp"/>
        <source>Find Ne&amp;xt</source>
        <translation>We&amp;itersuchen</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/FindRow.cpp"/>
        <source>Go to the next caption that holds it (F3)</source>
        <translation>Zum nächsten Bildtext, in dem es vorkommt (F3)</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/FindRow.cpp"/>
        <source>No caption holds it.</source>
        <translation>In keinem Bildtext kommt es vor.</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/FindRow.cpp"/>
        <source>Off: garden finds Garden, and cafe finds café</source>
        <translation>Aus: garten findet Garten, und cafe findet Café</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/FindRow.cpp"/>
        <source>Replace All</source>
        <translation>Alle ersetzen</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/FindRow.cpp"/>
        <source>Replace it in all captions of the list (Ctrl+Alt+Enter)</source>
        <translation>In allen Bildtexten der Liste ersetzen (Strg+Alt+Eingabe)</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/FindRow.cpp"/>
        <source>Replace it in this caption and go to the next</source>
        <translation>In diesem Bildtext ersetzen und zum nächsten gehen</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/FindRow.cpp"/>
        <source>Replace with</source>
        <translation>Ersetzen durch</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/FindRow.cpp"/>
        <source>Replaced %1 times, in %2 captions.</source>
        <translation>%1-mal ersetzt, in %2 Bildtexten.</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/FindRow.cpp"/>
        <source>What comes in its place; empty: it is taken out</source>
        <translation>Was an seine Stelle kommt; leer: Es wird entfernt</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/FindRow.cpp"/>
        <source>Words to look for in the captions (Enter: the next one, Esc: close)</source>
        <translation>Wörter, die in den Bildtexten gesucht werden (Eingabe: das nächste, Esc: schließen)</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/PicturePlace.cpp"/>
        <source>Double-Click To Load a Graphic</source>
        <translation>Doppelklicken, um ein Bild zu laden</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/PicturePlace.cpp"/>
        <source>Enter or a double click chooses a picture</source>
        <translation>Eingabe oder ein Doppelklick wählt ein Bild</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/SlideChoice.cpp"/>
        <source>Choose a Picture</source>
        <translation>Bild wählen</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/SlideChoice.cpp"/>
        <source>Choose a Sound</source>
        <translation>Ton wählen</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/SlideDeletion.cpp"/>
        <source>Deleting Slides ...</source>
        <translation>Dias werden gelöscht ...</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/SlideLists.cpp"/>
        <source>&lt;NEW SLIDE&gt;</source>
        <translation>&lt;NEUES DIA&gt;</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSetCaptions.cpp"/>
        <source> The first %1 are shown.</source>
        <translation> Zu sehen sind die ersten %1.</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSetCaptions.cpp"/>
        <source>%1 slides are selected.</source>
        <translation>%1 Dias sind gewählt.</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSetCaptions.cpp"/>
        <source>1 slide is selected.</source>
        <translation>1 Dia ist gewählt.</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSetCaptions.cpp"/>
        <source>C&amp;lear Captions</source>
        <translation>Bildtexte &amp;leeren</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSetCaptions.cpp"/>
        <source>Caption now</source>
        <translation>Bildtext jetzt</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSetCaptions.cpp"/>
        <source>Caption then</source>
        <translation>Bildtext danach</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSetCaptions.cpp"/>
        <source>Clear Captions</source>
        <translation>Bildtexte leeren</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSetCaptions.ui"/>
        <source>&amp;First number</source>
        <translation>&amp;Erste Nummer</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSetCaptions.ui"/>
        <source>&amp;Set Captions</source>
        <translation>Bildtexte &amp;setzen</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSetCaptions.ui"/>
        <source>C&amp;aption for all selected slides</source>
        <translation>Bildte&amp;xt für alle gewählten Dias</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSetCaptions.ui"/>
        <source>Caption for all selected slides</source>
        <translation>Bildtext für alle gewählten Dias</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSetCaptions.ui"/>
        <source>First number</source>
        <translation>Erste Nummer</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSetCaptions.ui"/>
        <source>Garden #</source>
        <translation>Garten #</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSetCaptions.ui"/>
        <source>Insert &amp;Number</source>
        <translation>&amp;Nummer einfügen</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSetCaptions.ui"/>
        <source>Insert Number</source>
        <translation>Nummer einfügen</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSetCaptions.ui"/>
        <source>Insert Old &amp;Caption</source>
        <translation>&amp;Alten Bildtext einfügen</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSetCaptions.ui"/>
        <source>Insert Old Caption</source>
        <translation>Alten Bildtext einfügen</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSetCaptions.ui"/>
        <source>Leave the captions as they are (Esc)</source>
        <translation>Die Bildtexte lassen, wie sie sind (Esc)</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSetCaptions.ui"/>
        <source>Put a # where a number is to count on: Garden 1, Garden 2</source>
        <translation>Ein # dorthin setzen, wo eine Nummer hochzählt: Garten 1, Garten 2</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSetCaptions.ui"/>
        <source>Put the caption of now there, to write something before or behind it</source>
        <translation>Den jetzigen Bildtext dorthin setzen, um etwas davor oder dahinter zu schreiben</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSetCaptions.ui"/>
        <source>Put these captions into the list; they are stored by Save there (Enter)</source>
        <translation>Diese Bildtexte in die Liste bringen; gespeichert werden sie dort mit „Speichern“ (Eingabe)</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSetCaptions.ui"/>
        <source>Set Captions</source>
        <translation>Bildtexte setzen</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSetCaptions.ui"/>
        <source>The captions of now and those that they will be</source>
        <translation>Die jetzigen Bildtexte und die künftigen</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSetCaptions.ui"/>
        <source>The number of the first of the selected slides</source>
        <translation>Die Nummer des ersten gewählten Dias</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSetCaptions.ui"/>
        <source>The text that each of them gets. # stands for a number that counts on, ## for one of two digits</source>
        <translation>Der Text, den jedes bekommt. # steht für eine Nummer, die hochzählt, ## für eine mit zwei Ziffern</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSetCaptions.ui"/>
        <source>What the captions will be</source>
        <translation>Wie die Bildtexte sein werden</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.cpp"/>
        <source>A new recording, not yet saved.</source>
        <translation>Eine neue Aufnahme, noch nicht gespeichert.</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.cpp"/>
        <source>A new sound, not yet saved.</source>
        <translation>Ein neuer Ton, noch nicht gespeichert.</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.cpp"/>
        <source>Import Graphics</source>
        <translation>Bilder importieren</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.cpp"/>
        <source>Import the graphics of a directory into the album</source>
        <translation>Die Bilder eines Ordners ins Album importieren</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.cpp"/>
        <source>Print a sheet of this slide</source>
        <translation>Ein Blatt von diesem Dia drucken</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.cpp"/>
        <source>Print this slide</source>
        <translation>Dieses Dia drucken</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.cpp"/>
        <source>Slide Manager</source>
        <translation>Dia-Verwaltung</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.cpp"/>
        <source>The sound goes with the next save.</source>
        <translation>Der Ton verschwindet mit dem nächsten Speichern.</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.cpp"/>
        <source>This slide has a sound.</source>
        <translation>Dieses Dia hat einen Ton.</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.cpp"/>
        <source>This slide has no sound.</source>
        <translation>Dieses Dia hat keinen Ton.</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.cpp"/>
        <source>You must first create an album.</source>
        <translation>Bitte legen Sie zuerst ein Album an.</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.ui"/>
        <source>&amp;Record...</source>
        <translation>Auf&amp;zeichnen...</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.ui"/>
        <source>A quarter turn to the left (Ctrl+Shift+L)</source>
        <translation>Eine Vierteldrehung nach links (Strg+Umschalt+L)</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.ui"/>
        <source>A quarter turn to the right (Ctrl+Shift+R)</source>
        <translation>Eine Vierteldrehung nach rechts (Strg+Umschalt+R)</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.ui"/>
        <source>Alt+G</source>
        <translation>Alt+G</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.ui"/>
        <source>Alt+J</source>
        <translation>Alt+J</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.ui"/>
        <source>Begin a new slide</source>
        <translation>Ein neues Dia beginnen</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.ui"/>
        <source>Bring back the slide as it was saved</source>
        <translation>Das Dia zurückholen, wie es gespeichert wurde</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.ui"/>
        <source>Cap&amp;tion</source>
        <translation>Bildt&amp;ext</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.ui"/>
        <source>Choose a picture file for the slide</source>
        <translation>Eine Bilddatei für das Dia wählen</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.ui"/>
        <source>Choose a slide</source>
        <translation>Dia wählen</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.ui"/>
        <source>Choose a sound file for this slide (Alt+J)</source>
        <translation>Eine Tondatei für dieses Dia wählen (Alt+J)</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.ui"/>
        <source>Choose picture</source>
        <translation>Bild wählen</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.ui"/>
        <source>Clear So&amp;und</source>
        <translation>T&amp;on entfernen</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.ui"/>
        <source>Clear Sound</source>
        <translation>Ton entfernen</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.ui"/>
        <source>Ctrl+Shift+H</source>
        <translation>Ctrl+Shift+H</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.ui"/>
        <source>Ctrl+Shift+L</source>
        <translation>Ctrl+Shift+L</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.ui"/>
        <source>Ctrl+Shift+R</source>
        <translation>Ctrl+Shift+R</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.ui"/>
        <source>Ctrl+Shift+V</source>
        <translation>Ctrl+Shift+V</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.ui"/>
        <source>Delete this slide from the album</source>
        <translation>Dieses Dia aus dem Album löschen</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.ui"/>
        <source>Double-click to choose a picture, or drop one here</source>
        <translation>Doppelklicken, um ein Bild zu wählen, oder eines hierher ziehen</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.ui"/>
        <source>Double-click to choose another picture, or drop one here</source>
        <translation>Doppelklicken, um ein anderes Bild zu wählen, oder eines hierher ziehen</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.ui"/>
        <source>Flip left to right</source>
        <translation>Links und rechts vertauschen</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.ui"/>
        <source>Flip the current slide</source>
        <translation>Das Dia spiegeln</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.ui"/>
        <source>Flip top to bottom</source>
        <translation>Oben und unten vertauschen</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.ui"/>
        <source>Go to the next slide</source>
        <translation>Zum nächsten Dia</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.ui"/>
        <source>Go to the previous slide</source>
        <translation>Zum vorigen Dia</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.ui"/>
        <source>In place of the show&apos;s &amp;music</source>
        <translation>Anstelle der &amp;Musik der Diashow</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.ui"/>
        <source>In place of the show&apos;s music</source>
        <translation>Anstelle der Musik der Diashow</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.ui"/>
        <source>Keep the changes to this slide</source>
        <translation>Die Änderungen an diesem Dia speichern</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.ui"/>
        <source>Left becomes right, as in a mirror (Ctrl+Shift+H)</source>
        <translation>Links wird rechts wie in einem Spiegel (Strg+Umschalt+H)</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.ui"/>
        <source>Picture of the slide</source>
        <translation>Bild des Dias</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.ui"/>
        <source>Pla&amp;y again and again</source>
        <translation>Immer wieder abs&amp;pielen</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.ui"/>
        <source>Place for the picture</source>
        <translation>Platz für das Bild</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.ui"/>
        <source>Play again and again</source>
        <translation>Immer wieder abspielen</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.ui"/>
        <source>Play the sound of this slide</source>
        <translation>Den Ton dieses Dias abspielen</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.ui"/>
        <source>Play the sound of this slide in place of the music of the show</source>
        <translation>Den Ton dieses Dias anstelle der Musik der Diashow spielen</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.ui"/>
        <source>Record a sound for this slide</source>
        <translation>Einen Ton für dieses Dia aufzeichnen</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.ui"/>
        <source>Record...</source>
        <translation>Aufzeichnen...</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.ui"/>
        <source>Repeat the sound for as long as the slide is shown</source>
        <translation>Den Ton wiederholen, solange das Dia zu sehen ist</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.ui"/>
        <source>Rotate the Slide</source>
        <translation>Das Dia drehen</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.ui"/>
        <source>Rotate to the left</source>
        <translation>Nach links drehen</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.ui"/>
        <source>Rotate to the right</source>
        <translation>Nach rechts drehen</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.ui"/>
        <source>Slid&amp;e</source>
        <translation>D&amp;ia</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.ui"/>
        <source>Sound File...</source>
        <translation>Tondatei...</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.ui"/>
        <source>Take the sound away from this slide</source>
        <translation>Diesem Dia den Ton wegnehmen</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.ui"/>
        <source>The slide to look at or to change</source>
        <translation>Das Dia, das Sie ansehen oder ändern</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.ui"/>
        <source>The text under the slide</source>
        <translation>Der Text unter dem Dia</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.ui"/>
        <source>Top becomes bottom (Ctrl+Shift+V)</source>
        <translation>Oben wird unten (Strg+Umschalt+V)</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBM.ui"/>
        <source>What is to be seen in the picture?</source>
        <translation>Was ist auf dem Bild zu sehen?</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBMSlide.cpp"/>
        <source>
An Error occured while attempting to Load the graphic for the current slide.
Double Slick on the Slide Spaceholder to browse for it.</source>
        <translation>
Beim Laden des Bildes zum aktuellen Dia ist ein Fehler aufgetreten.
Doppelklicken Sie auf den Platzhalter, um es zu suchen.</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBMSlide.cpp"/>
        <source>Are you sure you want to delete the selected slide defintion?
WARNING: If you procede the slide will be deleted from all
Slide Shows that use it?</source>
        <translation>Möchten Sie das gewählte Dia wirklich löschen?
ACHTUNG: Es verschwindet dann auch aus allen Diashows,
in denen es vorkommt.</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBMSlide.cpp"/>
        <source>Are you sure you want to discard the changes to the current slide?</source>
        <translation>Möchten Sie die Änderungen an diesem Dia wirklich verwerfen?</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBMSlide.cpp"/>
        <source>Are you sure you want to save the slide without a caption?
NOTE: It may be hard to tell slides apart in the combo
without captions.</source>
        <translation>Möchten Sie das Dia wirklich ohne Bildtext speichern?
HINWEIS: Ohne Bildtexte lassen sich Dias in der Auswahlliste
schwer unterscheiden.</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBMSlide.cpp"/>
        <source>Error Loading Slide</source>
        <translation>Fehler beim Laden des Dias</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBMSlide.cpp"/>
        <source>Error Loading the File.  Make sure that you have access permissions to it.</source>
        <translation>Fehler beim Laden der Datei. Prüfen Sie, ob Sie darauf zugreifen dürfen.</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBMSlide.cpp"/>
        <source>Missing Caption Confirmation</source>
        <translation>Ohne Bildtext?</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBMSlide.cpp"/>
        <source>Slide Deleted Successfully.</source>
        <translation>Das Dia wurde gelöscht.</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBMSlide.cpp"/>
        <source>You must first select an album to import into.</source>
        <translation>Bitte wählen Sie zuerst ein Album, in das importiert werden soll.</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideDBMSlide.cpp"/>
        <source>You must first select an album to print from.</source>
        <translation>Bitte wählen Sie zuerst ein Album, aus dem gedruckt werden soll.</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideMgrBulk.cpp"/>
        <source>Are you sure you want to discard the changes to the captions?</source>
        <translation>Möchten Sie die Änderungen an den Bildtexten wirklich verwerfen?</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideMgrBulk.cpp"/>
        <source>Bulk Slide Manager - </source>
        <translation>Sammelbearbeitung - </translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideMgrBulk.cpp"/>
        <source>Failed to Save Slide</source>
        <translation>Dia nicht gespeichert</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideMgrBulk.cpp"/>
        <source>Slide #%1 Not Found.</source>
        <translation>Dia Nr. %1 nicht gefunden.</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideMgrBulk.cpp"/>
        <source>You must first select the album changes are to be made to.</source>
        <translation>Bitte wählen Sie zuerst das Album, an dem geändert werden soll.</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideMgrBulk.cpp"/>
        <source>You must first select the album the slides are to be deleted from.</source>
        <translation>Bitte wählen Sie zuerst das Album, aus dem Dias gelöscht werden sollen.</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideMgrBulk.ui"/>
        <source>Album to manage the slides for</source>
        <translation>Das Album, dessen Dias bearbeitet werden</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideMgrBulk.ui"/>
        <source>Bulk Slide Manager</source>
        <translation>Sammelbearbeitung</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideMgrBulk.ui"/>
        <source>Cancel changes to the slides</source>
        <translation>Die Änderungen an den Dias verwerfen</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideMgrBulk.ui"/>
        <source>Close the form</source>
        <translation>Das Fenster schließen</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideMgrBulk.ui"/>
        <source>Delete the selected slides</source>
        <translation>Die gewählten Dias löschen</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideMgrBulk.ui"/>
        <source>Fi&amp;nd...</source>
        <translation>Suche&amp;n...</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideMgrBulk.ui"/>
        <source>Find and replace words in the captions (Ctrl+F, Ctrl+H)</source>
        <translation>Wörter in den Bildtexten suchen und ersetzen (Strg+F, Strg+H)</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideMgrBulk.ui"/>
        <source>Give all selected slides one caption, numbered if you like (Shift+F2)</source>
        <translation>Allen gewählten Dias einen Bildtext geben, wenn Sie möchten nummeriert (Umschalt+F2)</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideMgrBulk.ui"/>
        <source>Save changes to the slides</source>
        <translation>Die Änderungen an den Dias speichern</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideMgrBulk.ui"/>
        <source>Set Cap&amp;tions...</source>
        <translation>Bild&amp;texte...</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideMgrBulk.ui"/>
        <source>Slides in the currently selected album</source>
        <translation>Dias im gewählten Album</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideMgrBulkFill.cpp"/>
        <source>%1 captions (*) are not saved</source>
        <translation>%1 Bildtexte (*) sind nicht gespeichert</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideMgrBulkFill.cpp"/>
        <source>%1 of %2 slides are listed; Cancel lists them all</source>
        <translation>%1 von %2 Dias sind aufgeführt; „Abbrechen“ führt alle auf</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideMgrBulkFill.cpp"/>
        <source>%1 selected</source>
        <translation>%1 gewählt</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideMgrBulkFill.cpp"/>
        <source>&amp;Delete Slides	Del</source>
        <translation>Dias &amp;löschen	Entf</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideMgrBulkFill.cpp"/>
        <source>&amp;Find and Replace...	Ctrl+F</source>
        <translation>Suchen und &amp;ersetzen...	Strg+F</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideMgrBulkFill.cpp"/>
        <source>&amp;Set Captions...	Shift+F2</source>
        <translation>Bildtexte &amp;setzen...	Umschalt+F2</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideMgrBulkFill.cpp"/>
        <source>1 caption (*) is not saved</source>
        <translation>1 Bildtext (*) ist nicht gespeichert</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideMgrBulkFill.cpp"/>
        <source>Edit &amp;Caption	F2</source>
        <translation>Bild&amp;text bearbeiten	F2</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideMgrBulkFill.cpp"/>
        <source>First select the slides to caption.</source>
        <translation>Wählen Sie zuerst die Dias, die einen Bildtext bekommen sollen.</translation>
    </message>
    <message>
        <location filename="../src/windows/slides/frmSlideMgrBulkFill.cpp"/>
        <source>Show the &amp;Picture	Enter</source>
        <translation>Bild &amp;zeigen	Eingabe</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferDirectories.cpp"/>
        <source>Directories used last</source>
        <translation>Zuletzt benutzte Ordner</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferDirectories.cpp"/>
        <source>Directories used last (Alt+Down)</source>
        <translation>Zuletzt benutzte Ordner (Alt+Ab)</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferDirectories.cpp"/>
        <source>No directory has been used yet</source>
        <translation>Noch kein Ordner wurde benutzt</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferForm.cpp"/>
        <source>Do you want to make a new one there?</source>
        <translation>Möchten Sie dort eine neue anlegen?</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferForm.cpp"/>
        <source>NEB Slide Show Databases (%1)|%1|All Files (*.*)|*.*</source>
        <translation>NEB-Slide-Show-Datenbanken (%1)|%1|Alle Dateien (*.*)|*.*</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferForm.cpp"/>
        <source>Press Enter to open this directory.</source>
        <translation>Drücken Sie die Eingabetaste, um diesen Ordner zu öffnen.</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferForm.cpp"/>
        <source>The database is read-only:
nothing can be brought into it.</source>
        <translation>Die Datenbank ist schreibgeschützt:
Nichts lässt sich hineinbringen.</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferForm.cpp"/>
        <source>The specified directory does not hold an NEB Slide Show Database.</source>
        <translation>In diesem Ordner liegt keine Datenbank von NEB Slide Show.</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferForm.cpp"/>
        <source>There are no albums in this database.
Choose another one.</source>
        <translation>In dieser Datenbank gibt es keine Alben.
Wählen Sie eine andere.</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferForm.cpp"/>
        <source>This album has no slide shows.
Choose another one.</source>
        <translation>Dieses Album hat keine Diashows.
Wählen Sie ein anderes.</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferForm.cpp"/>
        <source>Vi&amp;ew...</source>
        <translation>Ansehe&amp;n...</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferForm.ui"/>
        <source>&amp;Refresh</source>
        <translation>A&amp;ktualisieren</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferForm.ui"/>
        <source>&amp;Slide Show</source>
        <translation>Diash&amp;ow</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferForm.ui"/>
        <source>&amp;View...</source>
        <translation>Anseh&amp;en...</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferForm.ui"/>
        <source>Alb&amp;um</source>
        <translation>&amp;Quellalbum</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferForm.ui"/>
        <source>Album Na&amp;me</source>
        <translation>A&amp;lbumname</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferForm.ui"/>
        <source>Album Name</source>
        <translation>Albumname</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferForm.ui"/>
        <source>Br&amp;owse...</source>
        <translation>Durchsu&amp;chen...</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferForm.ui"/>
        <source>Choose the folder of the database</source>
        <translation>Den Ordner der Datenbank wählen</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferForm.ui"/>
        <source>Close this window; nothing is copied (Esc)</source>
        <translation>Dieses Fenster schließen; nichts wird kopiert (Esc)</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferForm.ui"/>
        <source>Database</source>
        <translation>Datenbank</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferForm.ui"/>
        <source>Destination Album</source>
        <translation>Zielalbum</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferForm.ui"/>
        <source>Destination Slide Show</source>
        <translation>Diashow am Ziel</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferForm.ui"/>
        <source>Director&amp;y</source>
        <translation>&amp;Verzeichnis</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferForm.ui"/>
        <source>Empty the destination album first</source>
        <translation>Das Zielalbum vorher leeren</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferForm.ui"/>
        <source>Find the file NextIDs.dat of the database, or the place for one</source>
        <translation>Die Datei NextIDs.dat der Datenbank finden oder den Platz für eine</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferForm.ui"/>
        <source>Fol&amp;der...</source>
        <translation>Ordner w&amp;ählen...</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferForm.ui"/>
        <source>Look at the slides of the album</source>
        <translation>Die Dias des Albums ansehen</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferForm.ui"/>
        <source>Look at the slides of the slide show</source>
        <translation>Die Dias der Diashow ansehen</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferForm.ui"/>
        <source>NOTE: If Exporting to an Existing Slide Show
it will always overwrite the existing copy.</source>
        <translation>HINWEIS: Eine vorhandene Diashow
wird beim Exportieren immer überschrieben.</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferForm.ui"/>
        <source>Read the database in this directory</source>
        <translation>Die Datenbank in diesem Ordner lesen</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferForm.ui"/>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferForm.ui"/>
        <source>Replace De&amp;stination Album Contents (if any).  
If unchecked the source album will be added to the destination album.</source>
        <translation>Inhalt des &amp;Zielalbums ersetzen (falls vorhanden).
Sonst kommt das Quellalbum zum Zielalbum hinzu.</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferForm.ui"/>
        <source>Replace Destination Album Contents (if any).  If unchecked the source album will be added to the destination album.</source>
        <translation>Inhalt des Zielalbums ersetzen (falls vorhanden). Sonst kommt das Quellalbum zum Zielalbum hinzu.</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferForm.ui"/>
        <source>Slid&amp;e Show</source>
        <translation>Dia&amp;show</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferForm.ui"/>
        <source>Source Album</source>
        <translation>Quellalbum</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferForm.ui"/>
        <source>Source Slide Show</source>
        <translation>Diashow der Quelle</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferForm.ui"/>
        <source>The album to copy</source>
        <translation>Das Album, das kopiert wird</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferForm.ui"/>
        <source>The album to copy into, or a new one</source>
        <translation>Das Album, in das kopiert wird, oder ein neues</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferForm.ui"/>
        <source>The name that the album is to have at its destination</source>
        <translation>Der Name, den das Album am Ziel haben soll</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferForm.ui"/>
        <source>The name that the slide show is to have at its destination</source>
        <translation>Der Name, den die Diashow am Ziel haben soll</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferForm.ui"/>
        <source>The slide show to copy</source>
        <translation>Die Diashow, die kopiert wird</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferForm.ui"/>
        <source>The slide show to overwrite, or a new one</source>
        <translation>Die Diashow, die überschrieben wird, oder eine neue</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferForm.ui"/>
        <source>To</source>
        <translation>Nach</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferForm.ui"/>
        <source>View the destination album</source>
        <translation>Das Zielalbum ansehen</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferForm.ui"/>
        <source>View the destination slide show</source>
        <translation>Die Diashow am Ziel ansehen</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferForm.ui"/>
        <source>View the source album</source>
        <translation>Das Quellalbum ansehen</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferForm.ui"/>
        <source>View the source slide show</source>
        <translation>Die Diashow der Quelle ansehen</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferForm.ui"/>
        <source>View...</source>
        <translation>Ansehen...</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferForm.ui"/>
        <source>Your own</source>
        <translation>Ihre eigene</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferFormRun.cpp"/>
        <source>Choose the album.</source>
        <translation>Wählen Sie das Album.</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferFormRun.cpp"/>
        <source>Choose the slide show.</source>
        <translation>Wählen Sie die Diashow.</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferFormRun.cpp"/>
        <source>No Destination Selected</source>
        <translation>Kein Ziel gewählt</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferFormRun.cpp"/>
        <source>Operation Not Yet Completed</source>
        <translation>Noch nicht ganz fertig</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferFormRun.cpp"/>
        <source>Stopped; nothing was changed.</source>
        <translation>Angehalten; nichts wurde geändert.</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferFormRun.cpp"/>
        <source>The transfer is completed. The albums of before in that database could not be kept among the earlier ones.

%1</source>
        <translation>Die Übertragung ist fertig. Die bisherigen Alben jener Datenbank konnten nicht unter den früheren aufgehoben werden.

%1</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferFormRun.cpp"/>
        <source>The transfer is safe, and is completed when that database is opened next.</source>
        <translation>Die Übertragung ist sicher und wird fertig, wenn jene Datenbank das nächste Mal geöffnet wird.</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferFormRun.cpp"/>
        <source>Update</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferFormRun.cpp"/>
        <source>You must first select a Destination Album.</source>
        <translation>Bitte wählen Sie zuerst ein Zielalbum.</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferFormRun.cpp"/>
        <source>You must first select a Source Album.</source>
        <translation>Bitte wählen Sie zuerst ein Quellalbum.</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferFormRun.cpp"/>
        <source>You must select a slide show in order to view it.</source>
        <translation>Bitte wählen Sie die Diashow, die Sie ansehen möchten.</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferFormRun.cpp"/>
        <source>You must select an album in order to view it.</source>
        <translation>Bitte wählen Sie das Album, das Sie ansehen möchten.</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferKinds.cpp"/>
        <source>Album &quot;%1&quot; exported: %2.</source>
        <translation>Album „%1“ exportiert: %2.</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferKinds.cpp"/>
        <source>Album &quot;%1&quot; imported: %2.</source>
        <translation>Album „%1“ importiert: %2.</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferKinds.cpp"/>
        <source>Choose the folder of the database that the album comes from.</source>
        <translation>Wählen Sie den Ordner der Datenbank, aus der das Album kommt.</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferKinds.cpp"/>
        <source>Choose the folder of the database that the slide show comes from.</source>
        <translation>Wählen Sie den Ordner der Datenbank, aus der die Diashow kommt.</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferKinds.cpp"/>
        <source>Choose where the album is to go: the folder of another database,
or an empty folder, such as one on a stick.</source>
        <translation>Wählen Sie, wohin das Album soll: in den Ordner einer anderen Datenbank
oder in einen leeren, etwa auf einem USB-Stick.</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferKinds.cpp"/>
        <source>Choose where the slide show is to go: the folder of another database,
or an empty folder, such as one on a stick.</source>
        <translation>Wählen Sie, wohin die Diashow soll: in den Ordner einer anderen Datenbank
oder in einen leeren, etwa auf einem USB-Stick.</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferKinds.cpp"/>
        <source>Copy the album into your own database</source>
        <translation>Das Album in die eigene Datenbank kopieren</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferKinds.cpp"/>
        <source>Copy the album to the other database</source>
        <translation>Das Album in die andere Datenbank kopieren</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferKinds.cpp"/>
        <source>Copy the slide show into your own database</source>
        <translation>Die Diashow in die eigene Datenbank kopieren</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferKinds.cpp"/>
        <source>Copy the slide show to the other database</source>
        <translation>Die Diashow in die andere Datenbank kopieren</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferKinds.cpp"/>
        <source>Directory of the destination database</source>
        <translation>Ordner der Zieldatenbank</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferKinds.cpp"/>
        <source>Directory of the source database</source>
        <translation>Ordner der Quelldatenbank</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferKinds.cpp"/>
        <source>Expor&amp;t</source>
        <translation>Expor&amp;tieren</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferKinds.cpp"/>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferKinds.cpp"/>
        <source>Export Album</source>
        <translation>Album exportieren</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferKinds.cpp"/>
        <source>Export Slide Show</source>
        <translation>Diashow exportieren</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferKinds.cpp"/>
        <source>Exporting Album</source>
        <translation>Album wird exportiert</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferKinds.cpp"/>
        <source>Exporting Slide Show</source>
        <translation>Diashow wird exportiert</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferKinds.cpp"/>
        <source>Impor&amp;t</source>
        <translation>Impor&amp;tieren</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferKinds.cpp"/>
        <source>Import Album</source>
        <translation>Album importieren</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferKinds.cpp"/>
        <source>Import Slide Show</source>
        <translation>Diashow importieren</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferKinds.cpp"/>
        <source>Importing Album</source>
        <translation>Album wird importiert</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferKinds.cpp"/>
        <source>Importing Slide Show</source>
        <translation>Diashow wird importiert</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferKinds.cpp"/>
        <source>Slide show &quot;%1&quot; exported: %2.</source>
        <translation>Diashow „%1“ exportiert: %2.</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferKinds.cpp"/>
        <source>Slide show &quot;%1&quot; imported: %2.</source>
        <translation>Diashow „%1“ importiert: %2.</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferKinds.cpp"/>
        <source>Where the other database lies, or is to be made: type it and press Enter, choose it, or drop the folder on this window</source>
        <translation>Wo die andere Datenbank liegt oder angelegt werden soll: Geben Sie es ein, und drücken Sie die Eingabetaste, wählen Sie, oder ziehen Sie den Ordner auf dieses Fenster</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferKinds.cpp"/>
        <source>Where the other database lies: type it and press Enter, choose it, or drop the folder on this window</source>
        <translation>Wo die andere Datenbank liegt: Geben Sie es ein, und drücken Sie die Eingabetaste, wählen Sie, oder ziehen Sie den Ordner auf dieses Fenster</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferKinds.cpp"/>
        <source>You must first select an export destination.</source>
        <translation>Bitte wählen Sie zuerst, wohin exportiert werden soll.</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferKinds.cpp"/>
        <source>You must first select an import source.</source>
        <translation>Bitte wählen Sie zuerst, woher importiert werden soll.</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/TransferOther.cpp"/>
        <source>The database in
%1
is open in another window here. Close that window and try again.</source>
        <translation>Die Datenbank in
%1
ist hier in einem anderen Fenster offen. Schließen Sie es, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/frmAlbumView.cpp"/>
        <source>This album has no slides.
Close this window to choose another one.</source>
        <translation>Dieses Album hat keine Dias.
Schließen Sie dieses Fenster, um ein anderes zu wählen.</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/frmAlbumView.cpp"/>
        <source>This album is no longer there.
Close this window to choose another one.</source>
        <translation>Dieses Album gibt es nicht mehr.
Schließen Sie dieses Fenster, um ein anderes zu wählen.</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/frmAlbumView.ui"/>
        <source>Slides in the album; Enter or a double click shows the picture</source>
        <translation>Die Dias des Albums; die Eingabetaste oder ein Doppelklick zeigt das Bild</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/frmSlideShowView.cpp"/>
        <source>Could not find Slide Show Detail #%1</source>
        <translation>Der Eintrag Nr. %1 der Diashow wurde nicht gefunden</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/frmSlideShowView.cpp"/>
        <source>Could not find the Slide for Slide Show Detail #%1</source>
        <translation>Das Dia zum Eintrag Nr. %1 der Diashow wurde nicht gefunden</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/frmSlideShowView.cpp"/>
        <source>This slide show has no slides.
Close this window to choose another one.</source>
        <translation>Diese Diashow hat keine Dias.
Schließen Sie dieses Fenster, um eine andere zu wählen.</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/frmSlideShowView.cpp"/>
        <source>This slide show is no longer there.
Close this window to choose another one.</source>
        <translation>Diese Diashow gibt es nicht mehr.
Schließen Sie dieses Fenster, um eine andere zu wählen.</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/frmSlideShowView.ui"/>
        <source>Slides in the slide show, in their order; Enter or a double click shows the picture</source>
        <translation>Die Dias der Diashow in ihrer Reihenfolge; die Eingabetaste oder ein Doppelklick zeigt das Bild</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/frmSlideShowView.ui"/>
        <source>Slides of the slide show</source>
        <translation>Dias der Diashow</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/frmTransferProgress.ui"/>
        <source>Looking at what is to be copied ...</source>
        <translation>Es wird nachgesehen, was zu kopieren ist ...</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/frmTransferProgress.ui"/>
        <source>Stop, and leave everything as it was (Esc)</source>
        <translation>Anhalten und alles lassen, wie es war (Esc)</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/modTransferAsks.cpp"/>
        <source>%1 files of the source are missing or cannot be read:</source>
        <translation>%1 Dateien der Quelle fehlen oder sind nicht lesbar:</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/modTransferAsks.cpp"/>
        <source>, %1 files left out</source>
        <translation>, %1 Dateien weggelassen</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/modTransferAsks.cpp"/>
        <source>, 1 file left out</source>
        <translation>, 1 Datei weggelassen</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/modTransferAsks.cpp"/>
        <source>... and %1 more</source>
        <translation>... und %1 weitere</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/modTransferAsks.cpp"/>
        <source>A file of the source is missing or cannot be read:</source>
        <translation>Eine Datei der Quelle fehlt oder ist nicht lesbar:</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/modTransferAsks.cpp"/>
        <source>Do you want to go on without what is missing?</source>
        <translation>Möchten Sie ohne das Fehlende weitermachen?</translation>
    </message>
    <message>
        <location filename="../src/windows/transfer/modTransferAsks.cpp"/>
        <source>Missing Files</source>
        <translation>Fehlende Dateien</translation>
    </message>
</context>
</TS>
