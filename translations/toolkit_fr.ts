<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Drive</source>
        <translation>Lecteur</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>File Folder</source>
        <translation>Dossier de fichiers</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Raccourci</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Inconnu</translation>
    </message>
</context>
<context>
    <name>QPrintDialog</name>
    <message>
        <source>%1 does not follow the correct syntax. Please use ',' to separate ranges and pages, '-' to define ranges and make sure ranges do not intersect with each other.</source>
        <translation>%1 n'est pas bien écrit. Utilisez « , » pour séparer plages et pages, « - » pour les plages, sans que les plages se recoupent.</translation>
    </message>
    <message>
        <source>Duplex Settings Conflicts</source>
        <translation>Réglages recto verso en conflit</translation>
    </message>
    <message>
        <source>Invalid Pages Definition</source>
        <translation>Indication de pages non valable</translation>
    </message>
    <message>
        <source>There are conflicts in duplex settings. Do you want to fix them?</source>
        <translation>Les réglages recto verso sont en conflit. Voulez-vous les corriger ?</translation>
    </message>
</context>
<context>
    <name>QPrintPropertiesWidget</name>
    <message>
        <source>Advanced</source>
        <translation>Avancé</translation>
    </message>
    <message>
        <source>There are conflicts in some options. Please fix them.</source>
        <translation>Certaines options sont en conflit. Corrigez-les.</translation>
    </message>
</context>
<context>
    <name>QPrintSettingsOutput</name>
    <message>
        <source>Double Sided Printing</source>
        <translation>Impression recto verso</translation>
    </message>
    <message>
        <source>Long side binding</source>
        <translation>Reliure sur le bord long</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivée</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Short side binding</source>
        <translation>Reliure sur le bord court</translation>
    </message>
    <message>
        <source>Specify pages or ranges separated by commas. Ranges are specified by two numbers separated by a hyphen. E.g: 3,5-7,9 prints pages 3, 5, 6, 7 and 9.</source>
        <translation>Pages ou plages séparées par des virgules. Une plage est faite de deux nombres séparés par un trait d'union : 3,5-7,9 imprime les pages 3, 5, 6, 7 et 9.</translation>
    </message>
</context>
</TS>
