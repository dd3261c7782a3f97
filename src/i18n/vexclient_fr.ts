<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>AppHelpWidget</name>
    <message>
        <source>Back</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Close help</source>
        <translation>Fermer l&apos;aide</translation>
    </message>
    <message>
        <source>Help page</source>
        <translation>Page d&apos;aide</translation>
    </message>
</context>
<context>
    <name>AppMiniMissionControlWidget</name>
    <message>
        <source>Panel</source>
        <translation>Panneau</translation>
    </message>
</context>
<context>
    <name>AppMissionControlWidget</name>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Port: %1</source>
        <translation>Port&#xa0;: %1</translation>
    </message>
    <message>
        <source>Open mission control</source>
        <translation>Ouvrir le centre de contrôle</translation>
    </message>
    <message>
        <source>Close mission control</source>
        <translation>Fermer le centre de contrôle</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Système</translation>
    </message>
    <message>
        <source>Close application</source>
        <translation>Fermer l&apos;application</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
    </message>
    <message>
        <source>Application controls</source>
        <translation>Commandes de l&apos;application</translation>
    </message>
</context>
<context>
    <name>BreadcrumbBar</name>
    <message>
        <source>Path</source>
        <translation>Chemin</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>Ouvrir %1</translation>
    </message>
</context>
<context>
    <name>ClientGUIBase</name>
    <message>
        <source>SETUP</source>
        <translation>RÉGLAGES</translation>
    </message>
    <message>
        <source>TEST</source>
        <translation>TEST</translation>
    </message>
    <message>
        <source>RESULT</source>
        <translation>RÉSULTAT</translation>
    </message>
    <message>
        <source>Result File Browser</source>
        <translation>Fichiers de résultats</translation>
    </message>
    <message>
        <source>Application Selector</source>
        <translation>Sélecteur d&apos;applications</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>Applications</translation>
    </message>
</context>
<context>
    <name>ConflictDialog</name>
    <message>
        <source>Do the same with all that follow</source>
        <translation>Faire de même pour tous les suivants</translation>
    </message>
    <message>
        <source>File exists</source>
        <translation>Fichier existant</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there already.</source>
        <translation>«&#xa0;%1&#xa0;» existe déjà.</translation>
    </message>
    <message>
        <source>There now</source>
        <translation>Existant</translation>
    </message>
    <message>
        <source>To be copied</source>
        <translation>À copier</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Écraser</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Ignorer</translation>
    </message>
    <message>
        <source>Keep both</source>
        <translation>Conserver les deux</translation>
    </message>
    <message>
        <source>Cancel all</source>
        <translation>Tout annuler</translation>
    </message>
</context>
<context>
    <name>FcpAppCORBA</name>
    <message>
        <source>the link to %1 was given up</source>
        <translation>la liaison avec %1 a été abandonnée</translation>
    </message>
</context>
<context>
    <name>FileActionBar</name>
    <message>
        <source>List anew</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>Nouveau dossier</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Déplacer</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
</context>
<context>
    <name>FileItemDelegate</name>
    <message>
        <source>New name</source>
        <translation>Nouveau nom</translation>
    </message>
</context>
<context>
    <name>FileListView</name>
    <message>
        <source>Columns</source>
        <translation>Colonnes</translation>
    </message>
</context>
<context>
    <name>FileNames</name>
    <message>
        <source>this is not the name of a file</source>
        <translation>ce n&apos;est pas un nom de fichier</translation>
    </message>
    <message>
        <source>its name holds bytes that are no text</source>
        <translation>son nom contient des octets qui ne sont pas du texte</translation>
    </message>
    <message>
        <source>the name is longer than %1 bytes</source>
        <translation>le nom dépasse %1&#xa0;octets</translation>
    </message>
</context>
<context>
    <name>FileOperations</name>
    <message>
        <source>the instrument</source>
        <translation>l&apos;instrument</translation>
    </message>
    <message>
        <source>this computer</source>
        <translation>cet ordinateur</translation>
    </message>
    <message>
        <source>the medium %1</source>
        <translation>le support %1</translation>
    </message>
    <message>
        <source>No folder could be made here: it may be protected.</source>
        <translation>Impossible de créer un dossier ici&#xa0;: l&apos;emplacement est peut-être protégé.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be renamed to &quot;%2&quot;: the name may be taken.</source>
        <translation>Impossible de renommer «&#xa0;%1&#xa0;» en «&#xa0;%2&#xa0;»&#xa0;: ce nom est peut-être déjà pris.</translation>
    </message>
    <message>
        <source>Renamed to &quot;%1&quot;.</source>
        <translation>Renommé en «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>What is deleted can&apos;t be brought back.</source>
        <translation>Toute suppression est définitive.</translation>
    </message>
    <message>
        <source>Deleting…</source>
        <translation>Suppression…</translation>
    </message>
    <message>
        <source>Deleted.</source>
        <translation>Suppression terminée.</translation>
    </message>
    <message>
        <source>%1 entries</source>
        <translation>%1&#xa0;éléments</translation>
    </message>
    <message>
        <source>Open a folder and tap Paste to move %1.</source>
        <translation>Ouvrez un dossier et touchez Coller pour déplacer %1.</translation>
    </message>
    <message>
        <source>Open a folder and tap Paste to copy %1.</source>
        <translation>Ouvrez un dossier et touchez Coller pour copier %1.</translation>
    </message>
    <message>
        <source>Moving…</source>
        <translation>Déplacement…</translation>
    </message>
    <message>
        <source>Moved.</source>
        <translation>Déplacement terminé.</translation>
    </message>
    <message>
        <source>Copying…</source>
        <translation>Copie…</translation>
    </message>
    <message>
        <source>Copied.</source>
        <translation>Copie terminée.</translation>
    </message>
    <message>
        <source>Making a folder…</source>
        <translation>Création d&apos;un dossier…</translation>
    </message>
    <message>
        <source>Renaming…</source>
        <translation>Changement de nom…</translation>
    </message>
</context>
<context>
    <name>FilePane</name>
    <message>
        <source>Up</source>
        <translation>Dossier parent</translation>
    </message>
    <message>
        <source>Search in this folder</source>
        <translation>Rechercher dans ce dossier</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Types of files</source>
        <translation>Types de fichiers</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>The instrument can&apos;t be reached.</source>
        <translation>L&apos;instrument est injoignable.</translation>
    </message>
    <message>
        <source>%1 was removed.</source>
        <translation>%1 a été retiré.</translation>
    </message>
    <message>
        <source>There is no folder &quot;%1&quot;.</source>
        <translation>Le dossier «&#xa0;%1&#xa0;» n&apos;existe pas.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is gone.</source>
        <translation>Le dossier «&#xa0;%1&#xa0;» n&apos;existe plus.</translation>
    </message>
    <message>
        <source>This folder can&apos;t be listed.</source>
        <translation>Impossible d&apos;afficher le contenu de ce dossier.</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>Chargement…</translation>
    </message>
    <message>
        <source>Nothing here fits the search.</source>
        <translation>Aucun résultat dans ce dossier.</translation>
    </message>
    <message>
        <source>This folder is empty.</source>
        <translation>Ce dossier est vide.</translation>
    </message>
    <message>
        <source>The link to the instrument is lost</source>
        <translation>La liaison avec l&apos;instrument est perdue</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>This entry&apos;s name can&apos;t be used.</source>
        <translation>Le nom de cet élément ne peut pas être utilisé.</translation>
    </message>
    <message>
        <source>Only %1</source>
        <translation>%1 seulement</translation>
    </message>
    <message>
        <source>List only files of %1</source>
        <translation>N&apos;afficher que les fichiers de %1</translation>
    </message>
    <message>
        <source>There are no files of this type here.</source>
        <translation>Aucun fichier de ce type ici.</translation>
    </message>
</context>
<context>
    <name>FilePaths</name>
    <message>
        <source>A name is needed.</source>
        <translation>Un nom est requis.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be a name.</source>
        <translation>«&#xa0;%1&#xa0;» n&apos;est pas un nom valide.</translation>
    </message>
    <message>
        <source>A name can&apos;t have a &quot;/&quot;.</source>
        <translation>Un nom ne peut pas contenir «&#xa0;/&#xa0;».</translation>
    </message>
    <message>
        <source>A name can&apos;t have the character %1.</source>
        <translation>Un nom ne peut pas contenir le caractère %1.</translation>
    </message>
    <message>
        <source>This name is too long.</source>
        <translation>Ce nom est trop long.</translation>
    </message>
</context>
<context>
    <name>FileQuestions</name>
    <message>
        <source>1 file</source>
        <translation>1&#xa0;fichier</translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>%1 fichier</numerusform>
            <numerusform>%1 fichiers</numerusform>
        </translation>
    </message>
    <message>
        <source>1 folder</source>
        <translation>1&#xa0;dossier</translation>
    </message>
    <message numerus="yes">
        <source>%1 folders</source>
        <translation>
            <numerusform>%1 dossier</numerusform>
            <numerusform>%1 dossiers</numerusform>
        </translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Not everything was copied</source>
        <translation>Tout n&apos;a pas été copié</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Annulé</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 et %2</translation>
    </message>
    <message>
        <source>Delete %1 from %2?</source>
        <translation>Supprimer %1 sur %2&#xa0;?</translation>
    </message>
    <message>
        <source>Delete %1 with everything in it from %2?</source>
        <translation>Supprimer %1 avec tout le contenu sur %2&#xa0;?</translation>
    </message>
    <message>
        <source>Delete %1 with everything in them from %2?</source>
        <translation>Supprimer %1 avec tout le contenu sur %2&#xa0;?</translation>
    </message>
    <message>
        <source>%1 copied (%2)</source>
        <translation>%1 copié(s) (%2)</translation>
    </message>
    <message>
        <source>%1 skipped</source>
        <translation>%1 ignoré(s)</translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>%1 en échec</translation>
    </message>
    <message>
        <source>%1 not tried</source>
        <translation>%1 non tenté(s)</translation>
    </message>
    <message>
        <source>%1 s left</source>
        <translation>%1&#xa0;s restantes</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>%1&#xa0;min restantes</translation>
    </message>
    <message>
        <source>%1 h %2 min left</source>
        <translation>%1&#xa0;h %2&#xa0;min restantes</translation>
    </message>
</context>
<context>
    <name>FileTransfer</name>
    <message>
        <source>it is no file any more</source>
        <translation>ce n&apos;est plus un fichier</translation>
    </message>
    <message>
        <source>it is not there</source>
        <translation>introuvable</translation>
    </message>
    <message>
        <source>it was changed while it was read</source>
        <translation>modifié pendant la lecture</translation>
    </message>
    <message>
        <source>%1 bytes came of a file of %2 bytes</source>
        <translation>%1&#xa0;octets reçus pour un fichier de %2&#xa0;octets</translation>
    </message>
    <message>
        <source>there is no room left: %1</source>
        <translation>plus d&apos;espace disponible&#xa0;: %1</translation>
    </message>
    <message>
        <source>there is no link to the instrument</source>
        <translation>pas de liaison avec l&apos;instrument</translation>
    </message>
    <message>
        <source>the instrument cannot list %1</source>
        <translation>l&apos;instrument ne peut pas lister %1</translation>
    </message>
    <message>
        <source>%1; it is unknown whether the instrument still did its last step</source>
        <translation>%1&#xa0;; on ignore si l&apos;instrument a encore exécuté la dernière étape</translation>
    </message>
    <message>
        <source>%1 (the instrument answers %2)</source>
        <translation>%1 (réponse de l&apos;instrument&#xa0;: %2)</translation>
    </message>
    <message>
        <source>the instrument cannot give a file of %1 the name %2</source>
        <translation>l&apos;instrument ne peut pas donner le nom %2 à un fichier de %1</translation>
    </message>
    <message>
        <source>the instrument cannot remove %1</source>
        <translation>l&apos;instrument ne peut pas supprimer %1</translation>
    </message>
    <message>
        <source>the instrument cannot make a folder in %1</source>
        <translation>l&apos;instrument ne peut pas créer de dossier dans %1</translation>
    </message>
    <message>
        <source>this is not the path of a file</source>
        <translation>ce n&apos;est pas un chemin de fichier</translation>
    </message>
    <message>
        <source>it cannot be carried into itself</source>
        <translation>transfert impossible dans lui-même</translation>
    </message>
    <message>
        <source>the folders are nested too deeply</source>
        <translation>les dossiers sont imbriqués trop profondément</translation>
    </message>
    <message>
        <source>an unknown exception</source>
        <translation>une exception inconnue</translation>
    </message>
    <message>
        <source>the folder %1 is not there</source>
        <translation>le dossier %1 est introuvable</translation>
    </message>
    <message>
        <source>%1 are needed, and %2 are free in %3</source>
        <translation>%1 nécessaires, %2 disponibles dans %3</translation>
    </message>
    <message>
        <source>a file at the target has the name of this folder</source>
        <translation>un fichier de la destination porte le nom de ce dossier</translation>
    </message>
    <message>
        <source>%1; what may be left as %2 is removed when the file is carried again</source>
        <translation>%1&#xa0;; un éventuel reste sous %2 sera supprimé au prochain transfert du fichier</translation>
    </message>
    <message>
        <source>a folder at the target has the name of this file</source>
        <translation>un dossier de la destination porte le nom de ce fichier</translation>
    </message>
</context>
<context>
    <name>FwButtonTabWidget</name>
    <message>
        <source>Previous tabs</source>
        <translation>Onglets précédents</translation>
    </message>
    <message>
        <source>More tabs</source>
        <translation>Autres onglets</translation>
    </message>
</context>
<context>
    <name>FwLoadSaveDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation>Instrument</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Ordinateur</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Charger</translation>
    </message>
    <message>
        <source>Transfer files</source>
        <translation>Transférer des fichiers</translation>
    </message>
    <message>
        <source>Nothing can be saved here now.</source>
        <translation>Impossible d&apos;enregistrer ici pour le moment.</translation>
    </message>
    <message>
        <source>There is a folder with the name &quot;%1&quot;.</source>
        <translation>Il existe un dossier nommé «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists already. Overwrite it?</source>
        <translation>«&#xa0;%1&#xa0;» existe déjà. Voulez-vous l&apos;écraser&#xa0;?</translation>
    </message>
    <message>
        <source>What it holds now will be lost.</source>
        <translation>Son contenu actuel sera perdu.</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Écraser</translation>
    </message>
    <message>
        <source>Transfer</source>
        <translation>Transfert</translation>
    </message>
    <message>
        <source>Files are being copied. Cancel that and close?</source>
        <translation>Copie de fichiers en cours. Voulez-vous l&apos;annuler et fermer&#xa0;?</translation>
    </message>
    <message>
        <source>What has been copied so far stays.</source>
        <translation>Les éléments déjà copiés sont conservés.</translation>
    </message>
    <message>
        <source>Cancel and close</source>
        <translation>Annuler et fermer</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Continuer</translation>
    </message>
</context>
<context>
    <name>FwLogView</name>
    <message>
        <source>All levels</source>
        <translation>Tous les niveaux</translation>
    </message>
    <message>
        <source>From info</source>
        <translation>Informations et plus</translation>
    </message>
    <message>
        <source>From warning</source>
        <translation>Avertissements et plus</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Erreurs</translation>
    </message>
    <message>
        <source>All categories</source>
        <translation>Toutes les catégories</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Niveau</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Catégorie</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Journal</translation>
    </message>
</context>
<context>
    <name>FwNavigationButton</name>
    <message>
        <source>Previous window</source>
        <translation>Fenêtre précédente</translation>
    </message>
    <message>
        <source>Next window</source>
        <translation>Fenêtre suivante</translation>
    </message>
</context>
<context>
    <name>HelpBrowser</name>
    <message>
        <source>Only pages on this instrument can be shown here.</source>
        <translation>Seules les pages de cet instrument peuvent être affichées ici.</translation>
    </message>
    <message>
        <source>The help page is missing, or can not be read.</source>
        <translation>La page d&apos;aide est absente ou illisible.</translation>
    </message>
    <message>
        <source>This page can not be shown</source>
        <translation>Impossible d&apos;afficher cette page</translation>
    </message>
</context>
<context>
    <name>LampSign</name>
    <message>
        <source>On</source>
        <translation>Allumé</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Éteint</translation>
    </message>
    <message>
        <source>Indicator: %1</source>
        <translation>Voyant&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>LocalFileCopy</name>
    <message>
        <source>it is no file any more</source>
        <translation>ce n&apos;est plus un fichier</translation>
    </message>
    <message>
        <source>it cannot be read: %1</source>
        <translation>lecture impossible : %1</translation>
    </message>
    <message>
        <source>it cannot be written: %1</source>
        <translation>écriture impossible : %1</translation>
    </message>
</context>
<context>
    <name>LocalHelperThread</name>
    <message>
        <source>Cancelled.</source>
        <translation>Opération annulée.</translation>
    </message>
    <message>
        <source>Files are being copied, moved or deleted already.</source>
        <translation>Des fichiers sont déjà en cours de copie, de déplacement ou de suppression.</translation>
    </message>
    <message>
        <source>There is an entry of that name already.</source>
        <translation>Un élément de ce nom existe déjà.</translation>
    </message>
    <message>
        <source>This can&apos;t be done with this folder, or not at this place.</source>
        <translation>Opération impossible avec ce dossier ou à cet emplacement.</translation>
    </message>
    <message>
        <source>This is neither a file nor a folder nor a link, and can&apos;t be copied.</source>
        <translation>Cet élément n&apos;est ni un fichier, ni un dossier, ni un lien et ne peut pas être copié.</translation>
    </message>
    <message>
        <source>It is in use.</source>
        <translation>Élément en cours d&apos;utilisation.</translation>
    </message>
    <message>
        <source>Nothing may be changed here.</source>
        <translation>Aucune modification n&apos;est autorisée ici.</translation>
    </message>
</context>
<context>
    <name>LocalSource</name>
    <message>
        <source>it is not there</source>
        <translation>introuvable</translation>
    </message>
    <message>
        <source>this folder cannot be read</source>
        <translation>impossible de lire ce dossier</translation>
    </message>
</context>
<context>
    <name>LocalTarget</name>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>the folder %1 cannot be made: %2</source>
        <translation>impossible de créer le dossier %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 was changed while it was written</source>
        <translation>%1 a été modifié pendant l&apos;écriture</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>impossible d&apos;écrire %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 cannot be removed: %2</source>
        <translation>impossible de supprimer %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 cannot be flushed to the medium: %2</source>
        <translation>impossible de vider le tampon de %1 vers le support&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>NameField</name>
    <message>
        <source>File name</source>
        <translation>Nom de fichier</translation>
    </message>
</context>
<context>
    <name>NumericField</name>
    <message>
        <source>Whole numbers only</source>
        <translation>Nombres entiers uniquement</translation>
    </message>
    <message>
        <source>No negative values</source>
        <translation>Pas de valeurs négatives</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no digit here</source>
        <translation>«&#xa0;%1&#xa0;» n&apos;est pas un chiffre ici</translation>
    </message>
    <message>
        <source>Enter a number</source>
        <translation>Saisissez un nombre</translation>
    </message>
    <message>
        <source>Digits after the point: %1 at most</source>
        <translation>Décimales&#xa0;: %1 au maximum</translation>
    </message>
    <message>
        <source>Not a number in the range</source>
        <translation>Nombre hors de la plage</translation>
    </message>
    <message>
        <source>The largest value is %1</source>
        <translation>La valeur maximale est %1</translation>
    </message>
    <message>
        <source>The smallest value is %1</source>
        <translation>La valeur minimale est %1</translation>
    </message>
</context>
<context>
    <name>NumpadKeys</name>
    <message>
        <source>Without a prefix</source>
        <translation>Sans préfixe</translation>
    </message>
    <message>
        <source>Backspace</source>
        <translation>Retour arrière</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Cursor left</source>
        <translation>Curseur à gauche</translation>
    </message>
    <message>
        <source>Cursor right</source>
        <translation>Curseur à droite</translation>
    </message>
    <message>
        <source>Change the sign</source>
        <translation>Changer le signe</translation>
    </message>
    <message>
        <source>Decimal point</source>
        <translation>Point décimal</translation>
    </message>
    <message>
        <source>Min</source>
        <translation>Min</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>Max</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Défaut</translation>
    </message>
</context>
<context>
    <name>NumpadPanel</name>
    <message>
        <source>Value: %1</source>
        <translation>Valeur&#xa0;: %1</translation>
    </message>
    <message>
        <source>Range: %1 to %2</source>
        <translation>Plage&#xa0;: %1 à %2</translation>
    </message>
    <message>
        <source>Step: %1</source>
        <translation>Pas&#xa0;: %1</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>Saisie</translation>
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
        <source>Edit digits</source>
        <translation>Modifier les chiffres</translation>
    </message>
    <message>
        <source>Display password</source>
        <translation>Afficher le mot de passe</translation>
    </message>
    <message>
        <source>Disable password protection</source>
        <translation>Désactiver la protection par mot de passe</translation>
    </message>
</context>
<context>
    <name>QLrudDialog</name>
    <message>
        <source>Up</source>
        <translation>Haut</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Bas</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Droite</translation>
    </message>
    <message>
        <source>Keypad</source>
        <translation>Pavé numérique</translation>
    </message>
    <message>
        <source>Move keys up</source>
        <translation>Déplacer les touches vers le haut</translation>
    </message>
    <message>
        <source>Move keys down</source>
        <translation>Déplacer les touches vers le bas</translation>
    </message>
</context>
<context>
    <name>QvexDialogBorder</name>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Déplacer vers le haut</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Déplacer vers le bas</translation>
    </message>
    <message>
        <source>Move left</source>
        <translation>Déplacer vers la gauche</translation>
    </message>
    <message>
        <source>Move right</source>
        <translation>Déplacer vers la droite</translation>
    </message>
</context>
<context>
    <name>QvexFileMover</name>
    <message>
        <source>%1 was not carried: %2</source>
        <translation>%1 n&apos;a pas été transféré&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 was not carried: an unknown exception</source>
        <translation>%1 n&apos;a pas été transféré&#xa0;: une exception inconnue</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>impossible de lire %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 exists on the instrument</source>
        <translation>%1 existe déjà sur l&apos;instrument</translation>
    </message>
    <message>
        <source>the instrument cannot write %1</source>
        <translation>l&apos;instrument ne peut pas écrire %1</translation>
    </message>
    <message>
        <source>the instrument could not store what was sent of %1</source>
        <translation>l&apos;instrument n&apos;a pas pu enregistrer les données envoyées de %1</translation>
    </message>
    <message>
        <source>the destination has appeared on the instrument meanwhile</source>
        <translation>la destination est apparue entre-temps sur l&apos;instrument</translation>
    </message>
    <message>
        <source>the instrument could not store the file</source>
        <translation>l&apos;instrument n&apos;a pas pu enregistrer le fichier</translation>
    </message>
    <message>
        <source>%1 has shrunk while it was read</source>
        <translation>la taille de %1 a diminué pendant la lecture</translation>
    </message>
    <message>
        <source>aborted after %1 bytes</source>
        <translation>interrompu après %1&#xa0;octets</translation>
    </message>
    <message>
        <source>the instrument cannot read %1</source>
        <translation>l&apos;instrument ne peut pas lire %1</translation>
    </message>
    <message>
        <source>%1 exists</source>
        <translation>%1 existe déjà</translation>
    </message>
    <message>
        <source>%1 cannot be removed: %2</source>
        <translation>impossible de supprimer %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>the folder of %1 cannot be made</source>
        <translation>impossible de créer le dossier de %1</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>impossible d&apos;écrire %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>the instrument could not read the file to its end</source>
        <translation>l&apos;instrument n&apos;a pas pu lire le fichier jusqu&apos;à la fin</translation>
    </message>
</context>
<context>
    <name>QvexMessageBox</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Ne pas enregistrer</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>Restaurer les valeurs par défaut</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Tout enregistrer</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>Yes to All</source>
        <translation>Oui à tout</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>No to All</source>
        <translation>Non à tout</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Abandonner</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorer</translation>
    </message>
    <message>
        <source>Hide Details</source>
        <translation>Masquer les détails</translation>
    </message>
    <message>
        <source>Show Details</source>
        <translation>Afficher les détails</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Détails</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Question</translation>
    </message>
</context>
<context>
    <name>QvexNumpadDlg</name>
    <message>
        <source>The value stays as it is</source>
        <translation>La valeur reste inchangée</translation>
    </message>
    <message>
        <source>%1; or choose a unit</source>
        <translation>%1&#xa0;; ou choisissez une unité</translation>
    </message>
    <message>
        <source>Enter a number</source>
        <translation>Saisissez un nombre</translation>
    </message>
</context>
<context>
    <name>QvexPasswordPopup</name>
    <message>
        <source>Password Protection</source>
        <translation>Protection par mot de passe</translation>
    </message>
    <message>
        <source>Password Does Not Match.
Please Type Correct Password!</source>
        <translation>Le mot de passe ne correspond pas.
Veuillez saisir le mot de passe correct&#xa0;!</translation>
    </message>
</context>
<context>
    <name>QvexRemoteFileModel</name>
    <message>
        <source>It was cancelled.</source>
        <translation>L&apos;opération a été annulée.</translation>
    </message>
    <message>
        <source>Another operation is still running.</source>
        <translation>Une autre opération est encore en cours.</translation>
    </message>
    <message>
        <source>The link to the instrument was lost; it is not known whether it was done.</source>
        <translation>La liaison avec l&apos;instrument a été perdue&#xa0;; on ignore si l&apos;opération a été effectuée.</translation>
    </message>
    <message>
        <source>Its name can&apos;t be used.</source>
        <translation>Son nom ne peut pas être utilisé.</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation>Instrument</translation>
    </message>
    <message>
        <source>Instrument (%1)</source>
        <translation>Instrument (%1)</translation>
    </message>
    <message>
        <source>Internal</source>
        <translation>Internal</translation>
    </message>
    <message>
        <source>Remote</source>
        <translation>Remote</translation>
    </message>
    <message>
        <source>It is not there any more.</source>
        <translation>Cet élément n&apos;existe plus.</translation>
    </message>
    <message>
        <source>There is no permission for it.</source>
        <translation>Autorisation insuffisante.</translation>
    </message>
    <message>
        <source>Something of that name is there already.</source>
        <translation>Ce nom est déjà utilisé.</translation>
    </message>
    <message>
        <source>A folder can&apos;t be put into itself.</source>
        <translation>Un dossier ne peut pas être placé dans lui-même.</translation>
    </message>
    <message>
        <source>The instrument&apos;s storage is full.</source>
        <translation>La mémoire de l&apos;instrument est pleine.</translation>
    </message>
    <message>
        <source>The instrument reported error %1.</source>
        <translation>L&apos;instrument a signalé l&apos;erreur %1.</translation>
    </message>
    <message>
        <source>No folder could be made here: it may be protected.</source>
        <translation>Impossible de créer un dossier ici : l&apos;emplacement est peut-être protégé.</translation>
    </message>
</context>
<context>
    <name>QvextHelpDialog</name>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Accueil</translation>
    </message>
    <message>
        <source>Help page</source>
        <translation>Page d&apos;aide</translation>
    </message>
</context>
<context>
    <name>RemoteSource</name>
    <message>
        <source>it is not there</source>
        <translation>introuvable</translation>
    </message>
</context>
<context>
    <name>RemoteTarget</name>
    <message>
        <source>the instrument cannot replace %1</source>
        <translation>l&apos;instrument ne peut pas remplacer %1</translation>
    </message>
    <message>
        <source>%1; the old file may be called %2 now</source>
        <translation>%1&#xa0;; l&apos;ancien fichier s&apos;appelle peut-être %2 maintenant</translation>
    </message>
</context>
<context>
    <name>SidePanel</name>
    <message>
        <source>Close panel</source>
        <translation>Fermer le panneau</translation>
    </message>
</context>
<context>
    <name>SplashLines</name>
    <message>
        <source>Start-up messages</source>
        <translation>Messages de démarrage</translation>
    </message>
</context>
<context>
    <name>StatusStrip</name>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Stop what is under way</source>
        <translation>Arrêter l&apos;opération en cours</translation>
    </message>
</context>
<context>
    <name>TransferPanel</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>Progress of the transfer</source>
        <translation>Progression du transfert</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Cancel the transfer</source>
        <translation>Annuler le transfert</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>Annulation…</translation>
    </message>
</context>
<context>
    <name>TransferView</name>
    <message>
        <source>&quot;%1&quot; can&apos;t be copied into itself.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être copié dans lui-même.</translation>
    </message>
    <message>
        <source>Both sides show the same folder.</source>
        <translation>Les deux côtés affichent le même dossier.</translation>
    </message>
    <message>
        <source>Copy to the right side</source>
        <translation>Copier vers la droite</translation>
    </message>
    <message>
        <source>Copy to the left side</source>
        <translation>Copier vers la gauche</translation>
    </message>
    <message>
        <source>To %1:</source>
        <translation>Vers %1&#xa0;:</translation>
    </message>
    <message>
        <source>Transfer</source>
        <translation>Transfert</translation>
    </message>
</context>
<context>
    <name>UnitPrefix</name>
    <message>
        <source>Enter a number before the unit</source>
        <translation>Saisissez un nombre avant l&apos;unité</translation>
    </message>
    <message>
        <source>Too many digits for this unit</source>
        <translation>Trop de chiffres pour cette unité</translation>
    </message>
</context>
<context>
    <name>VerdictSign</name>
    <message>
        <source>No result</source>
        <translation>Pas de résultat</translation>
    </message>
    <message>
        <source>Pass</source>
        <translation>Réussi</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>Échec</translation>
    </message>
    <message>
        <source>See results</source>
        <translation>Voir résultats</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>subject and verdict</comment>
        <translation>%1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>VexLinkSupervisor</name>
    <message>
        <source>registered with %1:%2 as client %3</source>
        <translation>enregistré auprès de %1:%2 comme client %3</translation>
    </message>
    <message>
        <source>the controller answers again</source>
        <translation>le contrôleur répond de nouveau</translation>
    </message>
    <message>
        <source>connecting to %1:%2, attempt %3</source>
        <translation>connexion à %1:%2, tentative %3</translation>
    </message>
    <message>
        <source>no answer for %1 ms</source>
        <translation>aucune réponse depuis %1&#xa0;ms</translation>
    </message>
    <message>
        <source>no longer watched</source>
        <translation>n&apos;est plus surveillé</translation>
    </message>
</context>
</TS>
