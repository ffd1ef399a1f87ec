<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="it">
<context>
    <name>Vestrola</name>
    <message>
        <source>Il nome di questo file contiene caratteri sconosciuti, rinominalo:<byte value="xd"/>
%1</source>
        <translation>Der Name dieser Datei enthält unbekannte Zeichen, benennen Sie sie um:<byte value="xd"/>
%1</translation>
    </message>
    <message>
        <source>La cartella del programma si trova su un disco che non conserva i permessi dei file.<byte value="xd"/>
Chi può leggere il disco può leggere anche i destinatari e le password degli account.</source>
        <translation>Der Ordner des Programms liegt auf einem Datenträger, der die Rechte der Dateien nicht speichert.<byte value="xd"/>
Wer den Datenträger lesen kann, kann auch die Empfänger und die Passwörter der Konten lesen.</translation>
    </message>
    <message>
        <source>Scrivere di nuovo la password.</source>
        <translation>Geben Sie das Passwort noch einmal ein.</translation>
    </message>
    <message>
        <source>La password non è nota.</source>
        <translation>Das Passwort ist nicht bekannt.</translation>
    </message>
    <message>
        <source>La password ha caratteri che il file degli account non può contenere.</source>
        <translation>Das Passwort hat Zeichen, die die Kontendatei nicht aufnehmen kann.</translation>
    </message>
    <message>
        <source>Resta nel portachiavi.</source>
        <translation>Es bleibt im Schlüsselbund.</translation>
    </message>
    <message>
        <source>Senza la spunta la password resta nel file degli account.</source>
        <translation>Ohne das Häkchen bleibt das Passwort in der Kontendatei.</translation>
    </message>
    <message>
        <source>Overflow</source>
        <translation>Überlauf</translation>
    </message>
    <message>
        <source>Indice non compreso nell&apos;intervallo</source>
        <translation>Index außerhalb des gültigen Bereichs</translation>
    </message>
    <message>
        <source>Tipo non corrispondente</source>
        <translation>Typen unverträglich</translation>
    </message>
    <message>
        <source>Impossibile trovare il file</source>
        <translation>Datei nicht gefunden</translation>
    </message>
    <message>
        <source>Errore di I/O del dispositivo</source>
        <translation>E/A-Fehler des Geräts</translation>
    </message>
    <message>
        <source>Input oltre la fine del file</source>
        <translation>Eingabe hinter Dateiende</translation>
    </message>
    <message>
        <source>Errore di accesso al percorso/file</source>
        <translation>Fehler beim Zugriff auf Pfad/Datei</translation>
    </message>
    <message>
        <source>Uso non valido di Null</source>
        <translation>Unzulässige Verwendung von Null</translation>
    </message>
    <message>
        <source>Nessun record corrente</source>
        <translation>Kein aktueller Datensatz</translation>
    </message>
    <message>
        <source>Elemento non trovato nell&apos;insieme</source>
        <translation>Element in der Sammlung nicht gefunden</translation>
    </message>
    <message>
        <source>È stato scelto Annulla</source>
        <translation>Abbrechen wurde gewählt</translation>
    </message>
    <message>
        <source>Errore del programma</source>
        <translation>Programmfehler</translation>
    </message>
    <message>
        <source>Riga %1: il campo %2 non c&apos;è; %3</source>
        <translation>Zeile %1: Feld %2 fehlt; %3</translation>
    </message>
    <message numerus="yes">
        <source>inseriti %n destinatari</source>
        <translation>
            <numerusform>%n Empfänger hinzugefügt</numerusform>
            <numerusform>%n Empfänger hinzugefügt</numerusform>
        </translation>
    </message>
    <message>
        <source>Manca l&apos;indirizzo</source>
        <translation>Die Adresse fehlt</translation>
    </message>
    <message>
        <source>Nell&apos;indirizzo manca &quot;@&quot;</source>
        <translation>In der Adresse fehlt „@“</translation>
    </message>
    <message>
        <source>Nell&apos;indirizzo manca il nome prima di &quot;@&quot;</source>
        <translation>In der Adresse fehlt der Name vor „@“</translation>
    </message>
    <message>
        <source>Nell&apos;indirizzo manca il dominio dopo &quot;@&quot;</source>
        <translation>In der Adresse fehlt die Domain nach „@“</translation>
    </message>
    <message>
        <source>L&apos;ultima parte dell&apos;indirizzo ha più di quattro caratteri</source>
        <translation>Der letzte Teil der Adresse hat mehr als vier Zeichen</translation>
    </message>
    <message>
        <source>L&apos;indirizzo non è valido</source>
        <translation>Die Adresse ist ungültig</translation>
    </message>
    <message>
        <source>Destinatario numero %1: già servito, ma la sua riga non ha più quell&apos;indirizzo. Resta com&apos;è.</source>
        <translation>Empfänger Nummer %1: schon bedient, doch seine Zeile hat diese Adresse nicht mehr. Sie bleibt, wie sie ist.</translation>
    </message>
    <message>
        <source>cartelle perdute</source>
        <translation>verlorene Ordner</translation>
    </message>
    <message numerus="yes">
        <source>altre %n cartelle</source>
        <translation>
            <numerusform>%n weiterer Ordner</numerusform>
            <numerusform>%n weitere Ordner</numerusform>
        </translation>
    </message>
    <message>
        <source>Il registro di questo invio non c&apos;è più.</source>
        <translation>Das Protokoll dieses Versands ist nicht mehr da.</translation>
    </message>
    <message>
        <source>Il registro di questo invio è troppo grande per essere letto.</source>
        <translation>Das Protokoll dieses Versands ist zu groß zum Lesen.</translation>
    </message>
    <message>
        <source>Il registro di questo invio non si può leggere. %1</source>
        <translation>Das Protokoll dieses Versands lässt sich nicht lesen. %1</translation>
    </message>
    <message>
        <source>La cartella &quot;%1&quot; non si può scrivere.</source>
        <translation>In den Ordner „%1“ kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Data e ora</source>
        <translation>Datum und Uhrzeit</translation>
    </message>
    <message>
        <source>Indirizzo</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Esito</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Motivo</source>
        <translation>Grund</translation>
    </message>
    <message>
        <source>Codice</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Stato</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Risposta del server</source>
        <translation>Antwort des Servers</translation>
    </message>
    <message>
        <source>Casella o indirizzo inesistente</source>
        <translation>Postfach oder Adresse gibt es nicht</translation>
    </message>
    <message>
        <source>Casella disattivata</source>
        <translation>Postfach deaktiviert</translation>
    </message>
    <message>
        <source>Casella piena</source>
        <translation>Postfach voll</translation>
    </message>
    <message>
        <source>Regole del server: spam, blocchi o limiti</source>
        <translation>Regeln des Servers: Spam, Sperren oder Grenzen</translation>
    </message>
    <message>
        <source>Mittente non accettato</source>
        <translation>Absender nicht angenommen</translation>
    </message>
    <message>
        <source>Accesso all&apos;account non riuscito</source>
        <translation>Anmeldung am Konto fehlgeschlagen</translation>
    </message>
    <message>
        <source>Tempo scaduto senza risposta</source>
        <translation>Zeit abgelaufen, keine Antwort</translation>
    </message>
    <message>
        <source>Nessun server di posta per il dominio</source>
        <translation>Kein Mailserver für die Domain</translation>
    </message>
    <message>
        <source>Server non raggiunto</source>
        <translation>Server nicht erreicht</translation>
    </message>
    <message>
        <source>Connessione caduta o risposta non valida</source>
        <translation>Verbindung verloren oder ungültige Antwort</translation>
    </message>
    <message>
        <source>Messaggio troppo grande</source>
        <translation>Nachricht zu groß</translation>
    </message>
    <message>
        <source>Rifiuto temporaneo: riprovare più tardi</source>
        <translation>Vorläufig abgelehnt: später noch einmal versuchen</translation>
    </message>
    <message>
        <source>Invio fermato</source>
        <translation>Senden angehalten</translation>
    </message>
    <message>
        <source>Non spedito dal programma</source>
        <translation>Vom Programm nicht gesendet</translation>
    </message>
    <message>
        <source>Altro rifiuto del server</source>
        <translation>Sonstige Ablehnung des Servers</translation>
    </message>
    <message>
        <source>Consegnato</source>
        <translation>Zugestellt</translation>
    </message>
    <message>
        <source>Rifiutato</source>
        <translation>Abgelehnt</translation>
    </message>
    <message>
        <source>Senza risposta</source>
        <translation>Ohne Antwort</translation>
    </message>
    <message>
        <source>Non spedito</source>
        <translation>Nicht gesendet</translation>
    </message>
    <message>
        <source>Ricerca del server di posta non riuscita per un problema temporaneo: %1.</source>
        <translation>Die Suche nach dem Mailserver ist vorübergehend gescheitert: %1.</translation>
    </message>
    <message>
        <source>La risposta del DNS sul dominio del destinatario non si può usare: %1.</source>
        <translation>Die DNS-Antwort über die Domain des Empfängers ist unbrauchbar: %1.</translation>
    </message>
    <message>
        <source>Il dominio del destinatario non ha un server di posta: %1.</source>
        <translation>Die Domain des Empfängers hat keinen Mailserver: %1.</translation>
    </message>
    <message>
        <source>Su questo computer non è configurato un server DNS.</source>
        <translation>Auf diesem Computer ist kein DNS-Server eingerichtet.</translation>
    </message>
    <message>
        <source>Il dominio del destinatario non è valido.</source>
        <translation>Die Domain des Empfängers ist ungültig.</translation>
    </message>
    <message>
        <source>il server DNS non si può interrogare</source>
        <translation>der DNS-Server lässt sich nicht fragen</translation>
    </message>
    <message>
        <source>il server DNS non ha risposto in tempo</source>
        <translation>der DNS-Server hat nicht rechtzeitig geantwortet</translation>
    </message>
    <message>
        <source>il server DNS segnala un errore (SERVFAIL)</source>
        <translation>der DNS-Server meldet einen Fehler (SERVFAIL)</translation>
    </message>
    <message>
        <source>il server DNS rifiuta la domanda (REFUSED)</source>
        <translation>der DNS-Server lehnt die Anfrage ab (REFUSED)</translation>
    </message>
    <message>
        <source>è troncata</source>
        <translation>sie ist abgeschnitten</translation>
    </message>
    <message>
        <source>comincia con un alias (CNAME)</source>
        <translation>sie beginnt mit einem Alias (CNAME)</translation>
    </message>
    <message>
        <source>i suoi nomi non sono compressi</source>
        <translation>ihre Namen sind nicht komprimiert</translation>
    </message>
    <message>
        <source>ha un&apos;altra forma</source>
        <translation>sie hat eine andere Form</translation>
    </message>
    <message>
        <source>Il dominio del destinatario non accetta posta (null MX).</source>
        <translation>Die Domain des Empfängers nimmt keine Post an (null MX).</translation>
    </message>
    <message>
        <source>non esiste (NXDOMAIN)</source>
        <translation>sie existiert nicht (NXDOMAIN)</translation>
    </message>
    <message>
        <source>il DNS non ne indica</source>
        <translation>das DNS nennt keinen</translation>
    </message>
    <message>
        <source>Il file pathDBase.utf8, con il percorso del database, è danneggiato.<byte value="xd"/>
È stato messo da parte con il nome pathDBase.utf8.guasto.</source>
        <translation>Die Datei pathDBase.utf8 mit dem Pfad der Datenbank ist beschädigt.<byte value="xd"/>
Sie wurde unter dem Namen pathDBase.utf8.guasto beiseitegelegt.</translation>
    </message>
    <message>
        <source>La tabella dei destinatari non ha la colonna &quot;id_grp&quot;.</source>
        <translation>Die Empfängertabelle hat keine Spalte „id_grp“.</translation>
    </message>
    <message>
        <source>La cartella che la contiene non c&apos;è</source>
        <translation>Der Ordner, der ihn enthält, fehlt</translation>
    </message>
    <message>
        <source>Sta dentro &quot;%1&quot;, perduta anch&apos;essa</source>
        <translation>In „%1“, ebenfalls verloren</translation>
    </message>
    <message>
        <source>(cartella %1)</source>
        <translation>(Ordner %1)</translation>
    </message>
    <message>
        <source>La cartella dei destinatari non c&apos;è</source>
        <translation>Der Ordner der Empfänger fehlt</translation>
    </message>
    <message>
        <source>(nessuna cartella)</source>
        <translation>(kein Ordner)</translation>
    </message>
    <message>
        <source>I destinatari non hanno una cartella</source>
        <translation>Die Empfänger haben keinen Ordner</translation>
    </message>
    <message>
        <source>Indirizzo dell&apos;account</source>
        <translation>Adresse des Kontos</translation>
    </message>
    <message>
        <source>L&apos;indirizzo email dell&apos;account non è valido: correggerlo nella finestra degli account.</source>
        <translation>Die E-Mail-Adresse des Kontos ist ungültig: im Kontenfenster korrigieren.</translation>
    </message>
    <message>
        <source>Posta in arrivo (MX)</source>
        <translation>Posteingang (MX)</translation>
    </message>
    <message>
        <source>Indirizzo del dominio (A)</source>
        <translation>Adresse der Domain (A)</translation>
    </message>
    <message>
        <source>Nome inverso di questo computer</source>
        <translation>Rückwärtsname dieses Computers</translation>
    </message>
    <message>
        <source>Firma DKIM</source>
        <translation>DKIM-Signatur</translation>
    </message>
    <message>
        <source>Il DNS è troppo lento o porta troppo lontano: riprovare più tardi.</source>
        <translation>Das DNS ist zu langsam oder führt zu weit: später noch einmal versuchen.</translation>
    </message>
    <message>
        <source>Il dominio non esiste nel DNS: correggere l&apos;indirizzo dell&apos;account o registrare il dominio.</source>
        <translation>Die Domain existiert nicht im DNS: Adresse des Kontos korrigieren oder Domain registrieren.</translation>
    </message>
    <message>
        <source>Il dominio non ha un record MX: pubblicarne uno, perché risposte e avvisi di mancata consegna arrivino.</source>
        <translation>Die Domain hat keinen MX-Eintrag: einen veröffentlichen, damit Antworten und Unzustellbarkeitsmeldungen ankommen.</translation>
    </message>
    <message>
        <source>nessun indirizzo</source>
        <translation>keine Adresse</translation>
    </message>
    <message>
        <source>Il dominio dichiara di non ricevere posta (MX nullo): molti server rifiutano i messaggi di un mittente a cui non si può rispondere.</source>
        <translation>Die Domain erklärt, keine Post zu empfangen (null MX): Viele Server lehnen Nachrichten eines Absenders ab, dem man nicht antworten kann.</translation>
    </message>
    <message>
        <source>Nessun server del record MX ha un indirizzo: correggere il record.</source>
        <translation>Kein Server des MX-Eintrags hat eine Adresse: den Eintrag korrigieren.</translation>
    </message>
    <message>
        <source>Il dominio riceve posta.</source>
        <translation>Die Domain empfängt Post.</translation>
    </message>
    <message>
        <source>Il dominio ha un indirizzo.</source>
        <translation>Die Domain hat eine Adresse.</translation>
    </message>
    <message>
        <source>Il dominio non ha un indirizzo suo, e non gli serve: ha un record MX.</source>
        <translation>Die Domain hat keine eigene Adresse und braucht keine: Sie hat einen MX-Eintrag.</translation>
    </message>
    <message>
        <source>Il dominio non ha né un record MX né un indirizzo: molti server rifiutano i suoi messaggi; pubblicare un record MX.</source>
        <translation>Die Domain hat weder MX-Eintrag noch Adresse: Viele Server lehnen ihre Nachrichten ab; einen MX-Eintrag veröffentlichen.</translation>
    </message>
    <message>
        <source>L&apos;indirizzo pubblico di questo computer non si può conoscere da qui: verificare con il fornitore di rete che abbia un nome inverso.</source>
        <translation>Die öffentliche Adresse dieses Computers ist von hier aus nicht bekannt: beim Netzanbieter prüfen, ob sie einen Rückwärtsnamen hat.</translation>
    </message>
    <message>
        <source>nessun nome</source>
        <translation>kein Name</translation>
    </message>
    <message>
        <source>, che non riporta a questo indirizzo</source>
        <translation>, der nicht zu dieser Adresse zurückführt</translation>
    </message>
    <message>
        <source>Nome e indirizzo si confermano.</source>
        <translation>Name und Adresse bestätigen einander.</translation>
    </message>
    <message>
        <source>Chiedere al fornitore di rete un nome inverso che riporti allo stesso indirizzo: senza, molti server rifiutano l&apos;invio diretto.</source>
        <translation>Beim Netzanbieter einen Rückwärtsnamen verlangen, der zur selben Adresse zurückführt: Ohne ihn lehnen viele Server den direkten Versand ab.</translation>
    </message>
    <message>
        <source>Il record dichiara la chiave ritirata (p= vuoto): pubblicare quella nuova.</source>
        <translation>Der Eintrag erklärt den Schlüssel für zurückgezogen (p= leer): den neuen veröffentlichen.</translation>
    </message>
    <message>
        <source>Il record pubblicato è di un&apos;altra chiave, e le firme non valgono: pubblicare il record della chiave di questo programma.</source>
        <translation>Der veröffentlichte Eintrag gehört zu einem anderen Schlüssel, die Signaturen gelten nicht: den Eintrag des Schlüssels dieses Programms veröffentlichen.</translation>
    </message>
    <message>
        <source>Il record non ammette SHA-256: togliere il campo h=.</source>
        <translation>Der Eintrag erlaubt kein SHA-256: das Feld h= entfernen.</translation>
    </message>
    <message>
        <source>Il record non vale per la posta: togliere il campo s=.</source>
        <translation>Der Eintrag gilt nicht für E-Mail: das Feld s= entfernen.</translation>
    </message>
    <message>
        <source>stretto</source>
        <translation>streng</translation>
    </message>
    <message>
        <source>rilassato</source>
        <translation>locker</translation>
    </message>
    <message>
        <source>allineato</source>
        <translation>übereinstimmend</translation>
    </message>
    <message>
        <source>non allineato</source>
        <translation>nicht übereinstimmend</translation>
    </message>
    <message>
        <source>Record di %1, p=%2 per questo dominio, %3 % dei messaggi</source>
        <translation>Eintrag von %1, p=%2 für diese Domain, %3 % der Nachrichten</translation>
    </message>
    <message>
        <source>SPF: %1 (%2)</source>
        <translation>SPF: %1 (%2)</translation>
    </message>
    <message>
        <source>non si può sapere</source>
        <translation>nicht feststellbar</translation>
    </message>
    <message>
        <source>passa</source>
        <translation>besteht</translation>
    </message>
    <message>
        <source>non passa</source>
        <translation>besteht nicht</translation>
    </message>
    <message>
        <source>DKIM: %1 (%2)</source>
        <translation>DKIM: %1 (%2)</translation>
    </message>
    <message>
        <source>Nessun rapporto richiesto</source>
        <translation>Keine Berichte verlangt</translation>
    </message>
    <message>
        <source>Rapporti a %1</source>
        <translation>Berichte an %1</translation>
    </message>
    <message>
        <source>Con p=%1 i messaggi sono %2, perché non passano né SPF né DKIM: correggere prima quelle righe.</source>
        <translation>Mit p=%1 werden die Nachrichten %2, weil weder SPF noch DKIM bestehen: zuerst jene Zeilen korrigieren.</translation>
    </message>
    <message>
        <source>rifiutati</source>
        <translation>abgelehnt</translation>
    </message>
    <message>
        <source>messi fra la posta indesiderata</source>
        <translation>in den Spam-Ordner gelegt</translation>
    </message>
    <message>
        <source>Se SPF passa non si può sapere da qui: firmare con DKIM, perché DMARC passi in ogni caso.</source>
        <translation>Ob SPF besteht, ist von hier aus nicht feststellbar: mit DKIM signieren, damit DMARC auf jeden Fall besteht.</translation>
    </message>
    <message>
        <source>Il record osserva soltanto, e per ora non passano né SPF né DKIM: correggere quelle righe.</source>
        <translation>Der Eintrag beobachtet nur, und vorerst bestehen weder SPF noch DKIM: jene Zeilen korrigieren.</translation>
    </message>
    <message>
        <source>Il record osserva soltanto (p=none): quando i rapporti sono buoni, passare a p=quarantine.</source>
        <translation>Der Eintrag beobachtet nur (p=none): Sind die Berichte gut, zu p=quarantine übergehen.</translation>
    </message>
    <message>
        <source>Il record protegge il dominio, e i messaggi lo rispettano.</source>
        <translation>Der Eintrag schützt die Domain, und die Nachrichten halten sich daran.</translation>
    </message>
    <message>
        <source>I messaggi partono senza firma: creare una chiave DKIM e pubblicarne il record.</source>
        <translation>Die Nachrichten gehen ohne Signatur ab: einen DKIM-Schlüssel erstellen und seinen Eintrag veröffentlichen.</translation>
    </message>
    <message>
        <source>Il programma non firma i messaggi: se non lo fa il server del fornitore, creare una chiave DKIM e pubblicarne il record.</source>
        <translation>Das Programm signiert die Nachrichten nicht: Tut es der Server des Anbieters nicht, einen DKIM-Schlüssel erstellen und seinen Eintrag veröffentlichen.</translation>
    </message>
    <message>
        <source>Il record della chiave manca: pubblicarlo con il nome %1.</source>
        <translation>Der Eintrag des Schlüssels fehlt: unter dem Namen %1 veröffentlichen.</translation>
    </message>
    <message>
        <source>Allo stesso nome ci sono più record: lasciarne uno solo.</source>
        <translation>Unter demselben Namen stehen mehrere Einträge: nur einen lassen.</translation>
    </message>
    <message>
        <source>Il record non è una chiave DKIM valida: copiarlo di nuovo, intero.</source>
        <translation>Der Eintrag ist kein gültiger DKIM-Schlüssel: noch einmal ganz kopieren.</translation>
    </message>
    <message>
        <source>La chiave è pubblicata in prova (t=y): togliere il campo quando tutto funziona.</source>
        <translation>Der Schlüssel ist auf Probe veröffentlicht (t=y): das Feld entfernen, wenn alles läuft.</translation>
    </message>
    <message>
        <source>La chiave pubblicata è quella con cui il programma firma.</source>
        <translation>Der veröffentlichte Schlüssel ist der, mit dem das Programm signiert.</translation>
    </message>
    <message>
        <source>Pubblicare un record DMARC con il nome %1, per esempio &quot;v=DMARC1; p=none; rua=mailto:%2&quot;.</source>
        <translation>Einen DMARC-Eintrag unter dem Namen %1 veröffentlichen, zum Beispiel &quot;v=DMARC1; p=none; rua=mailto:%2&quot;.</translation>
    </message>
    <message>
        <source>%1 ha più di un record DMARC e nessuno vale: lasciarne uno solo.</source>
        <translation>%1 hat mehr als einen DMARC-Eintrag, und keiner gilt: nur einen lassen.</translation>
    </message>
    <message>
        <source>Il record DMARC di %1 non vale: manca il campo p= con none, quarantine o reject.</source>
        <translation>Der DMARC-Eintrag von %1 gilt nicht: Das Feld p= mit none, quarantine oder reject fehlt.</translation>
    </message>
    <message>
        <source>autorizzato</source>
        <translation>zugelassen</translation>
    </message>
    <message>
        <source>vietato</source>
        <translation>verboten</translation>
    </message>
    <message>
        <source>non autorizzato</source>
        <translation>nicht zugelassen</translation>
    </message>
    <message>
        <source>né autorizzato né vietato</source>
        <translation>weder zugelassen noch verboten</translation>
    </message>
    <message>
        <source> da &quot;%1&quot; di %2</source>
        <translation> durch „%1“ von %2</translation>
    </message>
    <message>
        <source>, %1 ricerche su 10</source>
        <translation>, %1 von 10 Abfragen</translation>
    </message>
    <message>
        <source>; il dominio dice: %1</source>
        <translation>; die Domain sagt: %1</translation>
    </message>
    <message>
        <source>Pubblicare un record SPF che nomini l&apos;indirizzo di questo computer: senza, molti server non si fidano dei messaggi.</source>
        <translation>Einen SPF-Eintrag veröffentlichen, der die Adresse dieses Computers nennt: Ohne ihn trauen viele Server den Nachrichten nicht.</translation>
    </message>
    <message>
        <source>Pubblicare un record SPF con la riga che indica il fornitore del server: senza, molti server non si fidano dei messaggi.</source>
        <translation>Einen SPF-Eintrag mit der Zeile veröffentlichen, die der Anbieter des Servers angibt: Ohne ihn trauen viele Server den Nachrichten nicht.</translation>
    </message>
    <message>
        <source>%1 ha più di un record SPF e nessuno vale: unirli in uno solo.</source>
        <translation>%1 hat mehr als einen SPF-Eintrag, und keiner gilt: zu einem vereinen.</translation>
    </message>
    <message>
        <source>Il record SPF di %1 è troppo lungo: accorciarlo.</source>
        <translation>Der SPF-Eintrag von %1 ist zu lang: kürzen.</translation>
    </message>
    <message>
        <source>Il record SPF di %1 non vale per un errore in &quot;%2&quot;: correggerlo.</source>
        <translation>Der SPF-Eintrag von %1 gilt wegen eines Fehlers in „%2“ nicht: korrigieren.</translation>
    </message>
    <message>
        <source>Il record SPF richiede più di 10 ricerche nel DNS e non vale: togliere meccanismi, per esempio %1.</source>
        <translation>Der SPF-Eintrag braucht mehr als 10 DNS-Abfragen und gilt nicht: Mechanismen entfernen, zum Beispiel %1.</translation>
    </message>
    <message>
        <source>Il record SPF di %1 nomina più di 2 domini senza record e non vale: togliere quelli che non esistono più, per esempio %2.</source>
        <translation>Der SPF-Eintrag von %1 nennt mehr als 2 Domains ohne Eintrag und gilt nicht: die entfernen, die es nicht mehr gibt, zum Beispiel %2.</translation>
    </message>
    <message>
        <source>Nel record SPF di %1 &quot;%2&quot; porta a più di 10 server e non vale: indicare gli indirizzi con ip4 o ip6.</source>
        <translation>Im SPF-Eintrag von %1 führt „%2“ zu mehr als 10 Servern und gilt nicht: die Adressen mit ip4 oder ip6 angeben.</translation>
    </message>
    <message>
        <source>Nel record SPF di %1 &quot;%2&quot; porta a un dominio senza record SPF, e tutto il record non vale: toglierlo o correggerlo.</source>
        <translation>Im SPF-Eintrag von %1 führt „%2“ zu einer Domain ohne SPF-Eintrag, und der ganze Eintrag gilt nicht: entfernen oder korrigieren.</translation>
    </message>
    <message>
        <source>Il record c&apos;è e si legge, ma l&apos;indirizzo pubblico di questo computer non si può conoscere da qui: verificare che il record lo nomini.</source>
        <translation>Der Eintrag ist da und lesbar, doch die öffentliche Adresse dieses Computers ist von hier aus nicht bekannt: prüfen, ob der Eintrag sie nennt.</translation>
    </message>
    <message>
        <source>Il record c&apos;è e si legge, ma il server non ha un indirizzo pubblico noto: chiedere al fornitore se è compreso nel record.</source>
        <translation>Der Eintrag ist da und lesbar, doch keine öffentliche Adresse des Servers ist bekannt: beim Anbieter fragen, ob der Eintrag ihn umfasst.</translation>
    </message>
    <message>
        <source>Il record autorizza l&apos;indirizzo di questo computer.</source>
        <translation>Der Eintrag lässt die Adresse dieses Computers zu.</translation>
    </message>
    <message>
        <source>Il record autorizza il server, per gli indirizzi che si conoscono.</source>
        <translation>Der Eintrag lässt den Server zu, soweit seine Adressen bekannt sind.</translation>
    </message>
    <message>
        <source>Il record non autorizza l&apos;indirizzo di questo computer: aggiungerlo con ip4 o ip6.</source>
        <translation>Der Eintrag lässt die Adresse dieses Computers nicht zu: mit ip4 oder ip6 hinzufügen.</translation>
    </message>
    <message>
        <source>Il record autorizza solo alcuni indirizzi del server: aggiungere gli altri, o verificare con il fornitore da quali spedisce.</source>
        <translation>Der Eintrag lässt nur einige Adressen des Servers zu: die anderen hinzufügen oder beim Anbieter erfragen, von welchen er sendet.</translation>
    </message>
    <message>
        <source>Il record non autorizza gli indirizzi noti del server: se il fornitore non spedisce da altri, aggiungere al record la riga che lui indica.</source>
        <translation>Der Eintrag lässt die bekannten Adressen des Servers nicht zu: Sendet der Anbieter nicht von anderen, die von ihm angegebene Zeile hinzufügen.</translation>
    </message>
    <message>
        <source>La tabella dei destinatari non ha tutte le sue colonne.</source>
        <translation>Die Empfängertabelle hat nicht alle ihre Spalten.</translation>
    </message>
    <message>
        <source>Il messaggio non si può aprire: </source>
        <translation>Die Nachricht lässt sich nicht öffnen: </translation>
    </message>
    <message>
        <source>Il file non contiene un messaggio intero: </source>
        <translation>Die Datei enthält keine vollständige Nachricht: </translation>
    </message>
    <message>
        <source>Tempo scaduto: il server non risponde.</source>
        <translation>Zeit abgelaufen: Der Server antwortet nicht.</translation>
    </message>
    <message>
        <source>Manca il nome del server.</source>
        <translation>Der Name des Servers fehlt.</translation>
    </message>
    <message>
        <source>Il nome del server non è valido.</source>
        <translation>Der Name des Servers ist ungültig.</translation>
    </message>
    <message>
        <source>La porta del server non è valida.</source>
        <translation>Der Port des Servers ist ungültig.</translation>
    </message>
    <message>
        <source>Il portachiavi non ha dato la password di questo account.</source>
        <translation>Der Schlüsselbund hat das Passwort dieses Kontos nicht herausgegeben.</translation>
    </message>
    <message>
        <source>In ordine</source>
        <translation>In Ordnung</translation>
    </message>
    <message>
        <source>Attenzione</source>
        <translation>Achtung</translation>
    </message>
    <message>
        <source>Da correggere</source>
        <translation>Zu korrigieren</translation>
    </message>
    <message>
        <source>In corso…</source>
        <translation>Läuft…</translation>
    </message>
    <message>
        <source>Server raggiunto</source>
        <translation>Server erreicht</translation>
    </message>
    <message>
        <source>Certificato</source>
        <translation>Zertifikat</translation>
    </message>
    <message>
        <source>Accesso</source>
        <translation>Anmeldung</translation>
    </message>
    <message>
        <source>Dimensione massima</source>
        <translation>Maximale Größe</translation>
    </message>
    <message>
        <source>Non si è potuto provare: correggere prima le righe sopra.</source>
        <translation>Das ließ sich nicht prüfen: zuerst die Zeilen darüber korrigieren.</translation>
    </message>
    <message>
        <source>Il server risponde.</source>
        <translation>Der Server antwortet.</translation>
    </message>
    <message>
        <source>Verificare nome e porta del server nell&apos;account.</source>
        <translation>Name und Port des Servers im Konto prüfen.</translation>
    </message>
    <message>
        <source>La connessione è protetta.</source>
        <translation>Die Verbindung ist geschützt.</translation>
    </message>
    <message>
        <source>Il server non offre una connessione protetta: usare la porta 587 o 465, o un altro server.</source>
        <translation>Der Server bietet keine geschützte Verbindung: Port 587 oder 465 oder einen anderen Server verwenden.</translation>
    </message>
    <message>
        <source>d MMMM yyyy</source>
        <comment>form of a date</comment>
        <translation>d. MMMM yyyy</translation>
    </message>
    <message>
        <source>Per: %1</source>
        <translation>Für: %1</translation>
    </message>
    <message>
        <source>Emesso da: %1</source>
        <translation>Ausgestellt von: %1</translation>
    </message>
    <message>
        <source>Vale fino al %1</source>
        <translation>Gültig bis %1</translation>
    </message>
    <message>
        <source>Il certificato è scaduto il %1: chi gestisce il server deve rinnovarlo.</source>
        <translation>Das Zertifikat ist am %1 abgelaufen: Der Betreiber des Servers muss es erneuern.</translation>
    </message>
    <message>
        <source>Il certificato non è accettato: verificare il nome del server nell&apos;account, o chiedere a chi lo gestisce.</source>
        <translation>Das Zertifikat wird nicht anerkannt: den Namen des Servers im Konto prüfen oder den Betreiber fragen.</translation>
    </message>
    <message>
        <source>Il certificato scade il %1: chi gestisce il server deve rinnovarlo in tempo.</source>
        <translation>Das Zertifikat läuft am %1 ab: Der Betreiber des Servers muss es rechtzeitig erneuern.</translation>
    </message>
    <message>
        <source>Il certificato è valido fino al %1.</source>
        <translation>Das Zertifikat ist bis %1 gültig.</translation>
    </message>
    <message>
        <source>L&apos;account non chiede l&apos;accesso.</source>
        <translation>Das Konto verlangt keine Anmeldung.</translation>
    </message>
    <message>
        <source>Il server accetta utente e password.</source>
        <translation>Der Server nimmt Benutzername und Passwort an.</translation>
    </message>
    <message>
        <source>Verificare utente e password nell&apos;account.</source>
        <translation>Benutzername und Passwort im Konto prüfen.</translation>
    </message>
    <message>
        <source>Il server non dichiara un limite.</source>
        <translation>Der Server nennt keine Grenze.</translation>
    </message>
    <message>
        <source>Il server accetta messaggi fino a %1: tenere piccoli gli allegati.</source>
        <translation>Der Server nimmt Nachrichten bis %1 an: Anlagen klein halten.</translation>
    </message>
    <message>
        <source>Il server accetta messaggi fino a %1.</source>
        <translation>Der Server nimmt Nachrichten bis %1 an.</translation>
    </message>
    <message>
        <source>Grave</source>
        <translation>Schwerwiegend</translation>
    </message>
    <message>
        <source>Consiglio</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>%1 non viene sostituito: si scrive %2.</source>
        <translation>%1 wird nicht ersetzt: richtig ist %2.</translation>
    </message>
    <message>
        <source>%1 non viene sostituito: nessuna colonna ha questo nome.</source>
        <translation>%1 wird nicht ersetzt: Keine Spalte heißt so.</translation>
    </message>
    <message>
        <source>%1 non viene sostituito nella forma HTML: è spezzato da un cambio di formato. Riscriverlo tutto di seguito.</source>
        <translation>%1 wird in der HTML-Form nicht ersetzt: Ein Formatwechsel zerteilt es. In einem Zug neu schreiben.</translation>
    </message>
    <message>
        <source>L&apos;allegato %1 non c&apos;è: il messaggio parte senza.</source>
        <translation>Der Anlage %1 fehlt: Die Nachricht geht ohne sie ab.</translation>
    </message>
    <message>
        <source>L&apos;oggetto è vuoto.</source>
        <translation>Der Betreff ist leer.</translation>
    </message>
    <message>
        <source>Manca la forma di solo testo: il messaggio non contiene testo, e chi non vede le immagini non legge niente.</source>
        <translation>Die Nur-Text-Form fehlt: Die Nachricht enthält keinen Text, und wer keine Bilder sieht, liest nichts.</translation>
    </message>
    <message>
        <source>Manca un collegamento di disiscrizione: chi non vuole più messaggi li segnala come indesiderati. Si crea nell&apos;editor con il comando &quot;Collegamento&quot;.</source>
        <translation>Ein Abmeldelink fehlt: Wer keine Nachrichten mehr will, meldet sie als Spam. Der Editor erstellt ihn mit dem Befehl „Link“.</translation>
    </message>
    <message>
        <source>%1 è vuoto per %2 di %3 destinatari selezionati</source>
        <translation>%1 ist bei %2 von %3 ausgewählten Empfängern leer</translation>
    </message>
    <message>
        <source>; per %1 di loro si legge %2 al posto del valore.</source>
        <translation>; bei %1 davon steht %2 an Stelle des Werts.</translation>
    </message>
    <message>
        <source>I caratteri &lt;, &amp; o &quot; di %1 cambiano il messaggio per %2 di %3 destinatari selezionati.</source>
        <translation>Die Zeichen &lt;, &amp; oder &quot; in %1 verändern die Nachricht für %2 von %3 ausgewählten Empfängern.</translation>
    </message>
    <message>
        <source>Il corpo è di %1: oltre 100 kB i grandi gestori di posta lo tagliano.</source>
        <translation>Der Nachrichtentext hat %1: Ab 100 kB schneiden große Mailanbieter ihn ab.</translation>
    </message>
    <message>
        <source>(senza indirizzo)</source>
        <translation>(ohne Adresse)</translation>
    </message>
    <message numerus="yes">
        <source>%Ln immagini non ci sono</source>
        <translation>
            <numerusform>Ein Bild fehlt</numerusform>
            <numerusform>%Ln Bilder fehlen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file non possono partire come immagini del messaggio</source>
        <translation>
            <numerusform>Eine Datei kann nicht als Bild der Nachricht mitgehen</numerusform>
            <numerusform>%Ln Dateien können nicht als Bilder der Nachricht mitgehen</numerusform>
        </translation>
    </message>
    <message>
        <source>(non è un&apos;immagine, o insieme superano 10 MB)</source>
        <translation>(kein Bild oder zusammen über 10 MB)</translation>
    </message>
    <message numerus="yes">
        <source>%Ln collegamenti non portano da nessuna parte</source>
        <translation>
            <numerusform>Ein Link führt ins Leere</numerusform>
            <numerusform>%Ln Links führen ins Leere</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln immagini restano sul web</source>
        <translation>
            <numerusform>Ein Bild bleibt im Web</numerusform>
            <numerusform>%Ln Bilder bleiben im Web</numerusform>
        </translation>
    </message>
    <message>
        <source>Molti programmi di posta non le mostrano finché il destinatario non vuole.</source>
        <translation>Viele Mailprogramme zeigen sie erst, wenn der Empfänger es will.</translation>
    </message>
    <message>
        <source>it</source>
        <comment>the ISO 639 code of this language</comment>
        <translation>de</translation>
    </message>
    <message>
        <source>In attesa del database, usato da un altro programma… Esc per rinunciare</source>
        <translation>Warten auf die Datenbank, die ein anderes Programm verwendet… Esc gibt auf</translation>
    </message>
    <message>
        <source>Ordine decrescente</source>
        <translation>Absteigend sortiert</translation>
    </message>
    <message>
        <source>Ordine crescente</source>
        <translation>Aufsteigend sortiert</translation>
    </message>
    <message>
        <source>Il file &quot;%1&quot; non contiene una disposizione valida delle barre.</source>
        <translation>Die Datei „%1“ enthält keine gültige Anordnung der Leisten.</translation>
    </message>
    <message>
        <source>Impossibile scrivere il file &quot;%1&quot;.</source>
        <translation>Die Datei „%1“ kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Impossibile leggere il file &quot;%1&quot;.</source>
        <translation>Die Datei „%1“ kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Proprietà elemento</source>
        <translation>Eigenschaften des Elements</translation>
    </message>
    <message>
        <source>Attributo</source>
        <translation>Attribut</translation>
    </message>
    <message>
        <source>Valore</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Attributi</source>
        <translation>Attribute</translation>
    </message>
    <message>
        <source>&amp;Elemento:</source>
        <translation>&amp;Element:</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Annulla</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Trova</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Solo sele&amp;zionati</source>
        <translation>Nur aus&amp;gewählte</translation>
    </message>
    <message>
        <source>T&amp;rova:</source>
        <translation>&amp;Suchen:</translation>
    </message>
    <message>
        <source>Dove cercare</source>
        <translation>Suchbereich</translation>
    </message>
    <message>
        <source>Precedente</source>
        <translation>Voriger</translation>
    </message>
    <message>
        <source>Trova precedente (Maiusc+Invio)</source>
        <translation>Voriges suchen (Umschalt+Eingabe)</translation>
    </message>
    <message>
        <source>Successivo</source>
        <translation>Nächster</translation>
    </message>
    <message>
        <source>Trova successivo (Invio)</source>
        <translation>Nächstes suchen (Eingabe)</translation>
    </message>
    <message>
        <source>Chiudi</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Chiudi la barra (Esc)</source>
        <translation>Leiste schließen (Esc)</translation>
    </message>
    <message>
        <source>&amp;Maiuscole e minuscole</source>
        <translation>&amp;Groß-/Kleinschreibung</translation>
    </message>
    <message>
        <source>&amp;Testo:</source>
        <translation>&amp;Text:</translation>
    </message>
    <message>
        <source>Trova &amp;successivo</source>
        <translation>&amp;Weitersuchen</translation>
    </message>
    <message>
        <source>Trova &amp;precedente</source>
        <translation>&amp;Rückwärts suchen</translation>
    </message>
    <message>
        <source>&amp;Chiudi</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Testo non trovato.</source>
        <translation>Text nicht gefunden.</translation>
    </message>
    <message>
        <source>Elemento &quot;%1&quot; non trovato.</source>
        <translation>Element „%1“ nicht gefunden.</translation>
    </message>
    <message>
        <source>L&apos;elemento &quot;%1&quot; esiste già.</source>
        <translation>Das Element „%1“ gibt es schon.</translation>
    </message>
    <message>
        <source>Un elemento non può essere spostato dentro sé stesso o i propri elementi.</source>
        <translation>Ein Element kann nicht in sich selbst oder seine eigenen Elemente verschoben werden.</translation>
    </message>
    <message>
        <source>pixel o %</source>
        <translation>Pixel oder %</translation>
    </message>
    <message>
        <source>Nessuno</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>A sinistra</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>A destra</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>In alto</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Al centro</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>In basso</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Immagine</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>S&amp;foglia...</source>
        <translation>&amp;Durchsuchen...</translation>
    </message>
    <message>
        <source>&amp;File o indirizzo:</source>
        <translation>Datei o&amp;der Adresse:</translation>
    </message>
    <message>
        <source>File o indirizzo</source>
        <translation>Datei oder Adresse</translation>
    </message>
    <message>
        <source>&amp;Testo alternativo:</source>
        <translation>Alternativ&amp;text:</translation>
    </message>
    <message>
        <source>&amp;Larghezza:</source>
        <translation>&amp;Breite:</translation>
    </message>
    <message>
        <source>A&amp;ltezza:</source>
        <translation>&amp;Höhe:</translation>
    </message>
    <message>
        <source>Alli&amp;neamento:</source>
        <translation>Aus&amp;richtung:</translation>
    </message>
    <message>
        <source>Inserisci immagine</source>
        <translation>Bild einfügen</translation>
    </message>
    <message>
        <source>Immagini|*.png;*.jpg;*.jpeg;*.gif;*.bmp;*.webp|Tutti i file|*</source>
        <translation>Bilder|*.png;*.jpg;*.jpeg;*.gif;*.bmp;*.webp|Alle Dateien|*</translation>
    </message>
    <message>
        <source>Indirizzo web</source>
        <translation>Webadresse</translation>
    </message>
    <message>
        <source>Posta elettronica</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <source>Collegamento di &amp;disiscrizione</source>
        <translation>Abmelde&amp;link</translation>
    </message>
    <message>
        <source>Collegamento</source>
        <translation>Link</translation>
    </message>
    <message>
        <source>I programmi di posta lo offrono al destinatario per disiscriversi con un clic</source>
        <translation>Mailprogramme bieten ihn dem Empfänger an, um sich mit einem Klick abzumelden</translation>
    </message>
    <message>
        <source>Inserisci nell&apos;indirizzo...</source>
        <translation>In die Adresse einfügen...</translation>
    </message>
    <message>
        <source>&amp;Tipo:</source>
        <translation>T&amp;yp:</translation>
    </message>
    <message>
        <source>&amp;Indirizzo:</source>
        <translation>A&amp;dresse:</translation>
    </message>
    <message>
        <source>&amp;Variabile:</source>
        <translation>&amp;Variable:</translation>
    </message>
    <message>
        <source>T&amp;esto:</source>
        <translation>Te&amp;xt:</translation>
    </message>
    <message>
        <source>Ri&amp;muovi</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>&amp;Riavvia</source>
        <translation>&amp;Neu starten</translation>
    </message>
    <message>
        <source>Ctrl+Tab inserisce una tabulazione</source>
        <translation>Strg+Tab fügt einen Tabulator ein</translation>
    </message>
    <message>
        <source>Contiene una tabulazione</source>
        <translation>Enthält einen Tabulator</translation>
    </message>
    <message>
        <source>Viste</source>
        <translation>Ansichten</translation>
    </message>
    <message>
        <source>Gli account non sono stati salvati:<byte value="xd"/>
il file Account.imp appartiene a un altro utente, che potrebbe leggere le password.</source>
        <translation>Die Konten wurden nicht gespeichert:<byte value="xd"/>
Die Datei Account.imp gehört einem anderen Benutzer, der die Passwörter lesen könnte.</translation>
    </message>
    <message>
        <source>Il file degli account non può contenere questi caratteri:</source>
        <translation>Die Kontendatei kann diese Zeichen nicht aufnehmen:</translation>
    </message>
    <message>
        <source>In attesa del portachiavi… Esc per rinunciare</source>
        <translation>Warten auf den Schlüsselbund… Esc gibt auf</translation>
    </message>
    <message>
        <source>Conserva la password nel portachiavi del desktop.</source>
        <translation>Passwort im Schlüsselbund des Desktops aufbewahren.</translation>
    </message>
    <message>
        <source>In attesa del browser: annulla l&apos;accesso</source>
        <translation>Warten auf den Browser: Anmeldung abbrechen</translation>
    </message>
    <message>
        <source>Accedi con il browser...</source>
        <translation>Mit dem Browser anmelden...</translation>
    </message>
    <message>
        <source>Per accedere con il browser scrivere prima lo username, di solito l&apos;indirizzo email.</source>
        <translation>Zum Anmelden mit dem Browser zuerst den Benutzernamen eingeben, meist die E-Mail-Adresse.</translation>
    </message>
    <message>
        <source>Accesso riuscito. Salvare ora l&apos;account con &quot;Nuovo Account&quot; o &quot;Modifica Account&quot;.</source>
        <translation>Anmeldung gelungen. Speichern Sie das Konto jetzt mit „Neues Konto“ oder „Konto bearbeiten“.</translation>
    </message>
    <message>
        <source>Nessun account: compilare e premere Nuovo Account</source>
        <translation>Kein Konto: ausfüllen und Neues Konto drücken</translation>
    </message>
    <message>
        <source>Allegato</source>
        <translation>Anlage</translation>
    </message>
    <message>
        <source>Cartella nascosta o fuori da quella personale</source>
        <translation>Versteckter Ordner oder außerhalb des persönlichen</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Dimensione</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Tipo</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Nota</source>
        <translation>Bemerkung</translation>
    </message>
    <message>
        <source>Operazione: </source>
        <translation>Vorgang: </translation>
    </message>
    <message>
        <source>Finestra: </source>
        <translation>Fenster: </translation>
    </message>
    <message>
        <source>File: </source>
        <translation>Datei: </translation>
    </message>
    <message>
        <source>Il programma viene chiuso</source>
        <translation>Das Programm wird beendet</translation>
    </message>
    <message>
        <source>&amp;Prova messaggio...</source>
        <translation>&amp;Nachricht prüfen...</translation>
    </message>
    <message>
        <source>Il messaggio come lo riceve un destinatario</source>
        <translation>Die Nachricht, wie ein Empfänger sie erhält</translation>
    </message>
    <message>
        <source>Controllo del &amp;mittente...</source>
        <translation>&amp;Absender prüfen...</translation>
    </message>
    <message>
        <source>Come i server dei destinatari vedono il dominio e il server di un account</source>
        <translation>Wie die Server der Empfänger Domain und Server eines Kontos sehen</translation>
    </message>
    <message>
        <source>&amp;Esito degli invii...</source>
        <translation>&amp;Ergebnis der Sendungen...</translation>
    </message>
    <message>
        <source>Chi ha ricevuto i messaggi, chi no e perché</source>
        <translation>Wer die Nachrichten erhielt, wer nicht und warum</translation>
    </message>
    <message>
        <source>&amp;Trova destinatari...</source>
        <translation>Empfänger &amp;suchen...</translation>
    </message>
    <message>
        <source>Trova destinatari nella cartella o ovunque</source>
        <translation>Empfänger im Ordner oder überall suchen</translation>
    </message>
    <message>
        <source>&amp;Ordina per la colonna corrente</source>
        <translation>Nach der aktuellen Spalte &amp;ordnen</translation>
    </message>
    <message>
        <source>Ordina l&apos;elenco per la colonna corrente; la terza volta torna l&apos;ordine di prima</source>
        <translation>Ordnet die Liste nach der aktuellen Spalte; beim dritten Mal kehrt die frühere Reihenfolge zurück</translation>
    </message>
    <message>
        <source>&amp;Indirizzi doppi...</source>
        <translation>&amp;Doppelte Adressen...</translation>
    </message>
    <message>
        <source>Trova gli indirizzi selezionati più di una volta</source>
        <translation>Findet Adressen, die mehr als einmal ausgewählt sind</translation>
    </message>
    <message>
        <source>Recupera &amp;cartelle perdute...</source>
        <translation>&amp;Verlorene Ordner wiederherstellen...</translation>
    </message>
    <message>
        <source>Riporta sotto la radice cartelle e destinatari che l&apos;albero non mostra</source>
        <translation>Holt Ordner und Empfänger, die der Baum nicht zeigt, unter die Wurzel zurück</translation>
    </message>
    <message>
        <source>&amp;Ultima importazione...</source>
        <translation>Letzter &amp;Import...</translation>
    </message>
    <message>
        <source>Righe importate e rifiutate dall&apos;ultima importazione</source>
        <translation>Zeilen, die der letzte Import übernommen oder abgelehnt hat</translation>
    </message>
    <message>
        <source>Il record non si legge</source>
        <translation>Der Datensatz ist nicht lesbar</translation>
    </message>
    <message>
        <source>tabella &quot;%1&quot; di %2</source>
        <translation>Tabelle „%1“ von %2</translation>
    </message>
    <message>
        <source>Importazione da file di testo</source>
        <translation>Import aus einer Textdatei</translation>
    </message>
    <message>
        <source>L&apos;indirizzo ha meno di %1 caratteri</source>
        <translation>Die Adresse hat weniger als %1 Zeichen</translation>
    </message>
    <message>
        <source>Lettura dei contatti di Outlook in corso… Esc per interrompere</source>
        <translation>Outlook-Kontakte werden gelesen… Esc bricht ab</translation>
    </message>
    <message>
        <source>file</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>chiamate di sistema</source>
        <translation>Systemaufrufe</translation>
    </message>
    <message>
        <source>memoria</source>
        <translation>Speicher</translation>
    </message>
    <message>
        <source>Outlook letto senza queste protezioni del sistema: </source>
        <translation>Outlook ohne diese Schutzmaßnahmen des Systems gelesen: </translation>
    </message>
    <message>
        <source>contatti di Outlook</source>
        <translation>Outlook-Kontakte</translation>
    </message>
    <message>
        <source>Non è un contatto</source>
        <translation>Kein Kontakt</translation>
    </message>
    <message>
        <source>rubrica</source>
        <translation>Adressbuch</translation>
    </message>
    <message>
        <source>obbligatorio</source>
        <translation>Pflichtfeld</translation>
    </message>
    <message>
        <source>Nessun allegato</source>
        <translation>Keine Anlagen</translation>
    </message>
    <message>
        <source>Variabile oggetto non impostata</source>
        <translation>Objektvariable nicht festgelegt</translation>
    </message>
    <message>
        <source>Colore del testo</source>
        <translation>Textfarbe</translation>
    </message>
    <message>
        <source>Messaggio</source>
        <translation>Nachricht</translation>
    </message>
    <message>
        <source>Origine del messaggio</source>
        <translation>Quelltext der Nachricht</translation>
    </message>
    <message>
        <source>Anteprima del messaggio</source>
        <translation>Vorschau der Nachricht</translation>
    </message>
    <message>
        <source>Il messaggio non è stato stampato.</source>
        <translation>Die Nachricht wurde nicht gedruckt.</translation>
    </message>
    <message>
        <source>Riprova fra qualche istante.</source>
        <translation>Versuchen Sie es gleich noch einmal.</translation>
    </message>
    <message>
        <source>Il testo incollato nominava file di questo computer, che sarebbero partiti con il messaggio. Sono stati lasciati fuori:</source>
        <translation>Der eingefügte Text nannte Dateien dieses Computers, die mit der Nachricht abgegangen wären. Sie wurden weggelassen:</translation>
    </message>
    <message numerus="yes">
        <source>e altri %n</source>
        <translation>
            <numerusform>und %n weitere</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>Per mettere un&apos;immagine nel messaggio usa &quot;Inserisci immagine&quot;.</source>
        <translation>Um ein Bild in die Nachricht zu setzen, verwenden Sie „Bild einfügen“.</translation>
    </message>
    <message numerus="yes">
        <source>Nel testo incollato %n elementi restano sul web</source>
        <translation>
            <numerusform>Im eingefügten Text bleibt %n Element im Web</numerusform>
            <numerusform>Im eingefügten Text bleiben %n Elemente im Web</numerusform>
        </translation>
    </message>
    <message>
        <source>Il testo resta nell&apos;origine, il messaggio è quello di prima.</source>
        <translation>Der Text bleibt im Quelltext, die Nachricht ist die frühere.</translation>
    </message>
    <message>
        <source>Il file del messaggio non può contenere questi caratteri, al loro posto c&apos;è &quot;?&quot;:</source>
        <translation>Die Nachrichtendatei kann diese Zeichen nicht aufnehmen, an ihrer Stelle steht „?“:</translation>
    </message>
    <message>
        <source>Oggetto: </source>
        <translation>Betreff: </translation>
    </message>
    <message>
        <source>Percorsi degli allegati: </source>
        <translation>Pfade der Anlagen: </translation>
    </message>
    <message>
        <source>Questi allegati non saranno trovati: rinomina i file.</source>
        <translation>Diese Anlagen werden nicht gefunden: Benennen Sie die Dateien um.</translation>
    </message>
    <message>
        <source>Il messaggio è stato salvato, ma così non si potrà né aprire né inviare.</source>
        <translation>Die Nachricht wurde gespeichert, lässt sich so aber weder öffnen noch senden.</translation>
    </message>
    <message>
        <source>Il messaggio non è stato salvato: riprova fra qualche istante.</source>
        <translation>Die Nachricht wurde nicht gespeichert: Versuchen Sie es gleich noch einmal.</translation>
    </message>
    <message>
        <source>Il messaggio non è stato salvato in %1:</source>
        <translation>Die Nachricht wurde nicht in %1 gespeichert:</translation>
    </message>
    <message>
        <source>Salvalo con un altro nome.</source>
        <translation>Speichern Sie sie unter einem anderen Namen.</translation>
    </message>
    <message>
        <source>Il messaggio nella finestra resta quello di prima.</source>
        <translation>Die Nachricht im Fenster bleibt die frühere.</translation>
    </message>
    <message>
        <source>Una copia di recupero è danneggiata e non si può leggere.<byte value="xd"/>
Il file resta in </source>
        <translation>Eine Wiederherstellungskopie ist beschädigt und nicht lesbar.<byte value="xd"/>
Die Datei bleibt in </translation>
    </message>
    <message>
        <source>Il messaggio %1 non è stato salvato prima della fine del programma.<byte value="xd"/>
Oggetto: %2<byte value="xd"/>
Ultima modifica: %3<byte value="xd"/>
Vuoi recuperarlo?</source>
        <translation>Die Nachricht %1 wurde vor dem Ende des Programms nicht gespeichert.<byte value="xd"/>
Betreff: %2<byte value="xd"/>
Letzte Änderung: %3<byte value="xd"/>
Möchten Sie sie wiederherstellen?</translation>
    </message>
    <message>
        <source>Il testo recuperato è nell&apos;origine.</source>
        <translation>Der wiederhergestellte Text steht im Quelltext.</translation>
    </message>
    <message>
        <source>Proprietà del messaggio</source>
        <translation>Eigenschaften der Nachricht</translation>
    </message>
    <message>
        <source>Margine sinistro della pagina, in pixel</source>
        <translation>Linker Rand der Seite in Pixel</translation>
    </message>
    <message>
        <source>Margine superiore della pagina, in pixel</source>
        <translation>Oberer Rand der Seite in Pixel</translation>
    </message>
    <message>
        <source>Margine orizzontale per altri programmi di posta, in pixel</source>
        <translation>Waagerechter Rand für andere Mailprogramme in Pixel</translation>
    </message>
    <message>
        <source>Margine verticale per altri programmi di posta, in pixel</source>
        <translation>Senkrechter Rand für andere Mailprogramme in Pixel</translation>
    </message>
    <message>
        <source>Colore di sfondo della pagina</source>
        <translation>Hintergrundfarbe der Seite</translation>
    </message>
    <message>
        <source>Colore dei collegamenti</source>
        <translation>Farbe der Links</translation>
    </message>
    <message>
        <source>Colore dei collegamenti mentre si premono</source>
        <translation>Farbe der Links beim Anklicken</translation>
    </message>
    <message>
        <source>Colore dei collegamenti già visitati</source>
        <translation>Farbe der besuchten Links</translation>
    </message>
    <message>
        <source>Percorso o indirizzo dell&apos;immagine di sfondo</source>
        <translation>Pfad oder Adresse des Hintergrundbilds</translation>
    </message>
    <message>
        <source>Il file degli invii già accettati era danneggiato ed è stato messo da parte:</source>
        <translation>Die Datei der schon angenommenen Sendungen war beschädigt und wurde beiseitegelegt:</translation>
    </message>
    <message>
        <source>Chi vi era ricordato potrebbe ricevere il messaggio una seconda volta.</source>
        <translation>Wer darin vermerkt war, könnte die Nachricht ein zweites Mal erhalten.</translation>
    </message>
    <message>
        <source>Sfoglia il messaggio</source>
        <translation>Nachricht auswählen</translation>
    </message>
    <message>
        <source>Invio terminato</source>
        <translation>Senden beendet</translation>
    </message>
    <message>
        <source>Nessun messaggio è stato scelto.</source>
        <translation>Es wurde keine Nachricht gewählt.</translation>
    </message>
    <message>
        <source>Il messaggio scelto resta </source>
        <translation>Gewählt bleibt die Nachricht </translation>
    </message>
    <message>
        <source>Ogni destinatario riceverà, insieme al messaggio, questi file di questo computer.<byte value="xd"/>
Vuoi inviarli?</source>
        <translation>Jeder Empfänger erhält mit der Nachricht diese Dateien dieses Computers.<byte value="xd"/>
Möchten Sie sie senden?</translation>
    </message>
    <message>
        <source>Non chiederlo &amp;più per questo messaggio</source>
        <translation>Für diese Nachricht nicht &amp;mehr fragen</translation>
    </message>
    <message>
        <source>Il file per l&apos;assistenza non si può scrivere:</source>
        <translation>Die Datei für den Support kann nicht geschrieben werden:</translation>
    </message>
    <message>
        <source>L&apos;invio prosegue senza.</source>
        <translation>Das Senden geht ohne sie weiter.</translation>
    </message>
    <message>
        <source>Un&apos;altra finestra di Vestrola sta inviando ai destinatari di questo database.<byte value="xd"/>
Riprovare quando avrà finito.</source>
        <translation>Ein anderes Fenster von Vestrola sendet gerade an die Empfänger dieser Datenbank.<byte value="xd"/>
Versuchen Sie es noch einmal, wenn es fertig ist.</translation>
    </message>
    <message>
        <source>Alcuni destinatari sono già stati serviti, ma non è possibile toglierli dalla selezione:</source>
        <translation>Einige Empfänger wurden schon bedient, lassen sich aber nicht aus der Auswahl nehmen:</translation>
    </message>
    <message>
        <source>L&apos;invio non è iniziato. Riprovare più tardi.</source>
        <translation>Das Senden hat nicht begonnen. Versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>Il disco del database è pieno. Chi riceve il messaggio resta selezionato finché non c&apos;è di nuovo posto, ma non lo riceve una seconda volta.</source>
        <translation>Der Datenträger der Datenbank ist voll. Wer die Nachricht erhält, bleibt ausgewählt, bis wieder Platz ist, erhält sie aber nicht ein zweites Mal.</translation>
    </message>
    <message>
        <source>L&apos;invio non è iniziato.</source>
        <translation>Das Senden hat nicht begonnen.</translation>
    </message>
    <message>
        <source>Se il database non potrà essere aggiornato, non tutti i destinatari saranno serviti.</source>
        <translation>Kann die Datenbank nicht aktualisiert werden, werden nicht alle Empfänger bedient.</translation>
    </message>
    <message>
        <source>I messaggi di questo invio partono senza firma.</source>
        <translation>Die Nachrichten dieses Versands gehen ohne Signatur ab.</translation>
    </message>
    <message>
        <source>meno di un minuto</source>
        <translation>weniger als eine Minute</translation>
    </message>
    <message numerus="yes">
        <source>circa %n minuti</source>
        <translation>
            <numerusform>etwa eine Minute</numerusform>
            <numerusform>etwa %n Minuten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>circa %n ore</source>
        <translation>
            <numerusform>etwa eine Stunde</numerusform>
            <numerusform>etwa %n Stunden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>circa %n ore e %1 min</source>
        <translation>
            <numerusform>etwa eine Stunde und %1 Min.</numerusform>
            <numerusform>etwa %n Stunden und %1 Min.</numerusform>
        </translation>
    </message>
    <message>
        <source>Tempo rimanente: %1</source>
        <translation>Verbleibende Zeit: %1</translation>
    </message>
    <message>
        <source>Il registro degli esiti non si può scrivere. %1</source>
        <translation>Das Ergebnisprotokoll kann nicht geschrieben werden. %1</translation>
    </message>
    <message>
        <source>Ultima non inviata: %1</source>
        <translation>Zuletzt nicht gesendet: %1</translation>
    </message>
    <message>
        <source>Per chiudere: Esc o un clic</source>
        <translation>Zum Schließen: Esc oder ein Klick</translation>
    </message>
    <message>
        <source>Scegliere una cartella</source>
        <translation>Ordner wählen</translation>
    </message>
    <message>
        <source>Chiusura del programma</source>
        <translation>Beenden des Programms</translation>
    </message>
    <message>
        <source>&amp;Strumenti</source>
        <translation>E&amp;xtras</translation>
    </message>
    <message>
        <source>Strumenti</source>
        <translation>Extras</translation>
    </message>
    <message>
        <source>Avanzamento</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Copia di </source>
        <translation>Kopie von </translation>
    </message>
    <message>
        <source>Il destinatario è compreso nel prossimo invio</source>
        <translation>Der Empfänger gehört zum nächsten Versand</translation>
    </message>
    <message>
        <source>Ragione sociale (max %1 caratteri)</source>
        <translation>Firma (höchstens %1 Zeichen)</translation>
    </message>
    <message>
        <source>Nome e/o cognome (max %1 caratteri)</source>
        <translation>Vor- und/oder Nachname (höchstens %1 Zeichen)</translation>
    </message>
    <message>
        <source>Partita Iva o codice fiscale (max %1 caratteri)</source>
        <translation>Steuernummer (höchstens %1 Zeichen)</translation>
    </message>
    <message>
        <source>Via e numero civico (max %1 caratteri)</source>
        <translation>Straße und Hausnummer (höchstens %1 Zeichen)</translation>
    </message>
    <message>
        <source>Codice di avviamento postale (max %1 caratteri)</source>
        <translation>Postleitzahl (höchstens %1 Zeichen)</translation>
    </message>
    <message>
        <source>Località (max %1 caratteri)</source>
        <translation>Ort (höchstens %1 Zeichen)</translation>
    </message>
    <message>
        <source>Numero di telefono (max %1 caratteri)</source>
        <translation>Telefonnummer (höchstens %1 Zeichen)</translation>
    </message>
    <message>
        <source>Numero di fax (max %1 caratteri)</source>
        <translation>Faxnummer (höchstens %1 Zeichen)</translation>
    </message>
    <message>
        <source>Nuova cartella: tasto destro sulla radice</source>
        <translation>Neuer Ordner: Rechtsklick auf die Wurzel</translation>
    </message>
    <message numerus="yes">
        <source>%Ln destinatari</source>
        <translation>
            <numerusform>%Ln Empfänger</numerusform>
            <numerusform>%Ln Empfänger</numerusform>
        </translation>
    </message>
    <message>
        <source>Destinatario da spostare: %1. Ctrl+V su una cartella lo sposta</source>
        <translation>Zu verschiebender Empfänger: %1. Strg+V auf einem Ordner verschiebt ihn</translation>
    </message>
    <message>
        <source>Cartella da spostare: %1. Ctrl+V su un&apos;altra cartella la sposta</source>
        <translation>Zu verschiebender Ordner: %1. Strg+V auf einem anderen Ordner verschiebt ihn</translation>
    </message>
    <message>
        <source>Destinatario spostato in %1</source>
        <translation>Empfänger nach %1 verschoben</translation>
    </message>
    <message>
        <source>Cartella spostata in %1</source>
        <translation>Ordner nach %1 verschoben</translation>
    </message>
    <message>
        <source>La cartella non può essere spostata in %1</source>
        <translation>Der Ordner kann nicht nach %1 verschoben werden</translation>
    </message>
    <message>
        <source>Nessun destinatario in questa cartella</source>
        <translation>Keine Empfänger in diesem Ordner</translation>
    </message>
    <message>
        <source>Ordine dell&apos;elenco</source>
        <translation>Reihenfolge der Liste</translation>
    </message>
    <message>
        <source>Ordinati per %1, crescente</source>
        <translation>Nach %1 geordnet, aufsteigend</translation>
    </message>
    <message>
        <source>Ordinati per %1, decrescente</source>
        <translation>Nach %1 geordnet, absteigend</translation>
    </message>
    <message>
        <source>Impossibile leggere i destinatari di questa cartella</source>
        <translation>Die Empfänger dieses Ordners lassen sich nicht lesen</translation>
    </message>
    <message>
        <source>Fai clic sulla cartella per vedere i destinatari</source>
        <translation>Klicken Sie auf den Ordner, um die Empfänger zu sehen</translation>
    </message>
    <message>
        <source>In questa cartella</source>
        <translation>In diesem Ordner</translation>
    </message>
    <message>
        <source>Ovunque</source>
        <translation>Überall</translation>
    </message>
    <message>
        <source>Ricerca non riuscita: %1</source>
        <translation>Suche gescheitert: %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln trovati, ricerca in corso…</source>
        <translation>
            <numerusform>%Ln gefunden, Suche läuft…</numerusform>
            <numerusform>%Ln gefunden, Suche läuft…</numerusform>
        </translation>
    </message>
    <message>
        <source>Nessun risultato</source>
        <translation>Keine Treffer</translation>
    </message>
    <message>
        <source>%1 di %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln trovati</source>
        <translation>
            <numerusform>%Ln gefunden</numerusform>
            <numerusform>%Ln gefunden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln cartelle</source>
        <translation>
            <numerusform>%1 in %Ln Ordner</numerusform>
            <numerusform>%1 in %Ln Ordnern</numerusform>
        </translation>
    </message>
    <message>
        <source>, %1 in cartelle perdute</source>
        <translation>, %1 in verlorenen Ordnern</translation>
    </message>
    <message>
        <source>; qui %1</source>
        <translation>; hier %1</translation>
    </message>
    <message>
        <source>Recupera cartelle perdute</source>
        <translation>Verlorene Ordner wiederherstellen</translation>
    </message>
    <message>
        <source>Cartella</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Destinatari</source>
        <translation>Empfänger</translation>
    </message>
    <message>
        <source>Perché non si vede</source>
        <translation>Warum er nicht zu sehen ist</translation>
    </message>
    <message>
        <source>L&apos;albero non mostra %1 e %2.<byte value="xd"/>
Portarli sotto &quot;Database Mailing&quot;?</source>
        <translation>Der Baum zeigt %1 und %2 nicht.<byte value="xd"/>
Unter „Database Mailing“ zurückholen?</translation>
    </message>
    <message numerus="yes">
        <source>%Ln cartelle</source>
        <translation>
            <numerusform>%Ln Ordner</numerusform>
            <numerusform>%Ln Ordner</numerusform>
        </translation>
    </message>
    <message>
        <source>L&apos;elenco mostra le prime %1 righe.</source>
        <translation>Die Liste zeigt die ersten %1 Zeilen.</translation>
    </message>
    <message>
        <source>Nessuna cartella è perduta: l&apos;albero le mostra tutte.</source>
        <translation>Kein Ordner ist verloren: Der Baum zeigt alle.</translation>
    </message>
    <message>
        <source>Impossibile recuperare tutte le cartelle.</source>
        <translation>Nicht alle Ordner ließen sich wiederherstellen.</translation>
    </message>
    <message>
        <source> Chiave DKIM di %1</source>
        <translation> DKIM-Schlüssel von %1</translation>
    </message>
    <message>
        <source>La chiave è stata creata. Pubblicare nel DNS del dominio un record TXT con questo nome e questo valore, poi premere Controlla.</source>
        <translation>Der Schlüssel wurde erstellt. Veröffentlichen Sie im DNS der Domain einen TXT-Eintrag mit diesem Namen und diesem Wert und drücken Sie dann Prüfen.</translation>
    </message>
    <message>
        <source>Il dominio ha già una chiave, che resta com&apos;è. Questo è il record TXT da pubblicare nel suo DNS.</source>
        <translation>Die Domain hat schon einen Schlüssel, der bleibt, wie er ist. Das ist der TXT-Eintrag für ihr DNS.</translation>
    </message>
    <message>
        <source>Selettore:</source>
        <translation>Selektor:</translation>
    </message>
    <message>
        <source>Nome del record:</source>
        <translation>Name des Eintrags:</translation>
    </message>
    <message>
        <source>Valore:</source>
        <translation>Wert:</translation>
    </message>
    <message>
        <source>Riga per un file di zona:</source>
        <translation>Zeile für eine Zonendatei:</translation>
    </message>
    <message>
        <source>Copia &amp;nome</source>
        <translation>&amp;Name kopieren</translation>
    </message>
    <message>
        <source>Il nome è negli appunti.</source>
        <translation>Der Name ist in der Zwischenablage.</translation>
    </message>
    <message>
        <source>Copia &amp;valore</source>
        <translation>&amp;Wert kopieren</translation>
    </message>
    <message>
        <source>Il valore è negli appunti.</source>
        <translation>Der Wert ist in der Zwischenablage.</translation>
    </message>
    <message>
        <source>Copia riga di &amp;zona</source>
        <translation>&amp;Zonenzeile kopieren</translation>
    </message>
    <message>
        <source>La riga è negli appunti.</source>
        <translation>Die Zeile ist in der Zwischenablage.</translation>
    </message>
    <message>
        <source> Controllo del mittente</source>
        <translation> Absenderprüfung</translation>
    </message>
    <message>
        <source>Nessun account: crearne uno con File, Imposta Account.</source>
        <translation>Kein Konto: eines mit Datei, Konten einrichten erstellen.</translation>
    </message>
    <message>
        <source>Il file degli account è danneggiato: si vedono solo quelli prima del guasto.</source>
        <translation>Die Kontendatei ist beschädigt: Nur die Konten vor dem Schaden sind zu sehen.</translation>
    </message>
    <message>
        <source>Scegliere un account e premere Controlla.</source>
        <translation>Konto wählen und Prüfen drücken.</translation>
    </message>
    <message>
        <source>Controllo in corso… Esc per interrompere.</source>
        <translation>Prüfung läuft… Esc bricht ab.</translation>
    </message>
    <message>
        <source>Interrotto</source>
        <translation>Abgebrochen</translation>
    </message>
    <message numerus="yes">
        <source>%n righe</source>
        <translation>
            <numerusform>%n Zeile</numerusform>
            <numerusform>%n Zeilen</numerusform>
        </translation>
    </message>
    <message>
        <source>Controllo finito: tutto in ordine.</source>
        <translation>Prüfung beendet: alles in Ordnung.</translation>
    </message>
    <message>
        <source>Controllo finito: %1 da correggere, %2 con attenzione.</source>
        <translation>Prüfung beendet: %1 zu korrigieren, %2 mit Achtung.</translation>
    </message>
    <message>
        <source>Controllo interrotto.</source>
        <translation>Prüfung abgebrochen.</translation>
    </message>
    <message>
        <source>L&apos;indirizzo email dell&apos;account non è valido.</source>
        <translation>Die E-Mail-Adresse des Kontos ist ungültig.</translation>
    </message>
    <message>
        <source>Creare una chiave DKIM per %1?<byte value="xd"/>
Da quel momento i messaggi di questo dominio vengono firmati; la firma vale quando il suo record è pubblicato.</source>
        <translation>DKIM-Schlüssel für %1 erstellen?<byte value="xd"/>
Von da an werden die Nachrichten dieser Domain signiert; die Signatur gilt, sobald ihr Eintrag veröffentlicht ist.</translation>
    </message>
    <message>
        <source>Chiave DKIM</source>
        <translation>DKIM-Schlüssel</translation>
    </message>
    <message>
        <source>I file della chiave non sono stati cambiati.</source>
        <translation>Die Dateien des Schlüssels wurden nicht geändert.</translation>
    </message>
    <message>
        <source>Il rapporto è negli appunti.</source>
        <translation>Der Bericht ist in der Zwischenablage.</translation>
    </message>
    <message>
        <source>&amp;Account mittente:</source>
        <translation>&amp;Absenderkonto:</translation>
    </message>
    <message>
        <source>C&amp;ontrolla</source>
        <translation>&amp;Prüfen</translation>
    </message>
    <message>
        <source>&amp;Interrompi</source>
        <translation>A&amp;bbrechen</translation>
    </message>
    <message>
        <source>Controllo</source>
        <translation>Prüfung</translation>
    </message>
    <message>
        <source>Che cosa fare</source>
        <translation>Was zu tun ist</translation>
    </message>
    <message>
        <source>Righe del controllo</source>
        <translation>Zeilen der Prüfung</translation>
    </message>
    <message>
        <source>D&amp;ettagli:</source>
        <translation>&amp;Einzelheiten:</translation>
    </message>
    <message>
        <source>Crea chiave &amp;DKIM...</source>
        <translation>&amp;DKIM-Schlüssel erstellen...</translation>
    </message>
    <message>
        <source>Copia &amp;tutto</source>
        <translation>A&amp;lles kopieren</translation>
    </message>
    <message>
        <source>Crea la chiave con cui firmare i messaggi, o mostra quella che c&apos;è</source>
        <translation>Erstellt den Schlüssel zum Signieren der Nachrichten oder zeigt den vorhandenen</translation>
    </message>
    <message>
        <source>database </source>
        <translation>Datenbank </translation>
    </message>
    <message>
        <source> Esito degli invii</source>
        <translation> Ergebnis der Sendungen</translation>
    </message>
    <message>
        <source>Invio</source>
        <translation>Versand</translation>
    </message>
    <message>
        <source>&amp;Elimina</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Elimina &amp;tutti</source>
        <translation>&amp;Alle löschen</translation>
    </message>
    <message>
        <source>Indirizzo o risposta</source>
        <translation>Adresse oder Antwort</translation>
    </message>
    <message>
        <source>Destinatari dell&apos;invio</source>
        <translation>Empfänger des Versands</translation>
    </message>
    <message>
        <source>&amp;Registra l&apos;esito dei prossimi invii</source>
        <translation>E&amp;rgebnisse der nächsten Sendungen aufzeichnen</translation>
    </message>
    <message>
        <source>Restano gli ultimi 50 invii, nella cartella &quot;esiti&quot; dei dati del programma</source>
        <translation>Die letzten 50 Sendungen bleiben im Ordner „esiti“ der Programmdaten</translation>
    </message>
    <message>
        <source>&amp;Seleziona questi per il prossimo invio</source>
        <translation>Diese für den nächsten Versand aus&amp;wählen</translation>
    </message>
    <message>
        <source>C&amp;opia</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Sal&amp;va CSV...</source>
        <translation>CS&amp;V speichern...</translation>
    </message>
    <message>
        <source>&amp;Deseleziona gli indirizzi inesistenti</source>
        <translation>&amp;Nicht vorhandene Adressen abwählen</translation>
    </message>
    <message>
        <source>Quelli che il server del destinatario ha rifiutato come inesistenti
(codici 5.1.1, 5.1.2, 5.1.3, 5.1.6 e 5.1.10)</source>
        <translation>Jene, die der Server des Empfängers als unbekannt abgelehnt hat
(Codes 5.1.1, 5.1.2, 5.1.3, 5.1.6 und 5.1.10)</translation>
    </message>
    <message>
        <source>I&amp;nvio:</source>
        <translation>&amp;Versand:</translation>
    </message>
    <message>
        <source>Es&amp;ito:</source>
        <translation>Er&amp;gebnis:</translation>
    </message>
    <message>
        <source>&amp;Motivo:</source>
        <translation>Gr&amp;und:</translation>
    </message>
    <message>
        <source>Trov&amp;a:</source>
        <translation>&amp;Suchen:</translation>
    </message>
    <message>
        <source>Tutti</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Nessun invio registrato. L&apos;esito di ogni destinatario compare qui dopo il prossimo invio.</source>
        <translation>Kein Versand aufgezeichnet. Das Ergebnis für jeden Empfänger erscheint hier nach dem nächsten Versand.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln destinatari.</source>
        <translation>
            <numerusform>%Ln Empfänger.</numerusform>
            <numerusform>%Ln Empfänger.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 di %2 destinatari.</source>
        <translation>%1 von %2 Empfängern.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln righe del registro sono rovinate e non vengono mostrate.</source>
        <translation>
            <numerusform>Eine Zeile des Protokolls ist beschädigt und wird nicht gezeigt.</numerusform>
            <numerusform>%Ln Zeilen des Protokolls sind beschädigt und werden nicht gezeigt.</numerusform>
        </translation>
    </message>
    <message>
        <source>Il registro si interrompe a metà di una riga: il programma è terminato durante l&apos;invio.</source>
        <translation>Das Protokoll bricht mitten in einer Zeile ab: Das Programm endete während des Versands.</translation>
    </message>
    <message>
        <source>L&apos;invio è di un altro database: la selezione non si può cambiare da qui.</source>
        <translation>Der Versand gehört zu einer anderen Datenbank: Die Auswahl lässt sich von hier aus nicht ändern.</translation>
    </message>
    <message>
        <source>Salva l&apos;esito dell&apos;invio</source>
        <translation>Ergebnis des Versands speichern</translation>
    </message>
    <message>
        <source>File CSV (*.csv)|*.csv|</source>
        <translation>CSV-Datei (*.csv)|*.csv|</translation>
    </message>
    <message>
        <source>Il file non si può scrivere:</source>
        <translation>Die Datei kann nicht geschrieben werden:</translation>
    </message>
    <message numerus="yes">
        <source>%Ln di questi destinatari hanno già ricevuto il messaggio.</source>
        <translation>
            <numerusform>Einer dieser Empfänger hat die Nachricht schon erhalten.</numerusform>
            <numerusform>%Ln dieser Empfänger haben die Nachricht schon erhalten.</numerusform>
        </translation>
    </message>
    <message>
        <source>Selezionarli tutti lo stesso?</source>
        <translation>Trotzdem alle auswählen?</translation>
    </message>
    <message>
        <source>In questo invio nessun indirizzo è risultato inesistente.</source>
        <translation>In diesem Versand hat sich keine Adresse als nicht vorhanden erwiesen.</translation>
    </message>
    <message>
        <source>In questo invio %1 destinatari su %2 risultano inesistenti.<byte value="xd"/>
Quando sono più della metà la causa è spesso un&apos;altra: un server che rifiuta ogni destinatario, o il mittente bloccato.<byte value="xd"/>
Deselezionarli lo stesso?</source>
        <translation>In diesem Versand gibt es %1 von %2 Empfängern offenbar nicht.<byte value="xd"/>
Ist es mehr als die Hälfte, liegt es oft an anderem: einem Server, der jeden Empfänger ablehnt, oder einem gesperrten Absender.<byte value="xd"/>
Trotzdem abwählen?</translation>
    </message>
    <message>
        <source>La selezione non si può cambiare:</source>
        <translation>Die Auswahl lässt sich nicht ändern:</translation>
    </message>
    <message numerus="yes">
        <source>%Ln destinatari sono stati selezionati.</source>
        <translation>
            <numerusform>Ein Empfänger wurde ausgewählt.</numerusform>
            <numerusform>%Ln Empfänger wurden ausgewählt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln destinatari sono stati deselezionati.</source>
        <translation>
            <numerusform>Ein Empfänger wurde abgewählt.</numerusform>
            <numerusform>%Ln Empfänger wurden abgewählt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln lo erano già.</source>
        <translation>
            <numerusform>Einer war es schon.</numerusform>
            <numerusform>%Ln waren es schon.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln non sono stati toccati: non ci sono più, o il loro indirizzo è cambiato.</source>
        <translation>
            <numerusform>Einer blieb unberührt: Es gibt ihn nicht mehr, oder seine Adresse hat sich geändert.</numerusform>
            <numerusform>%Ln blieben unberührt: Es gibt sie nicht mehr, oder ihre Adresse hat sich geändert.</numerusform>
        </translation>
    </message>
    <message>
        <source>Eliminare il registro di questo invio?<byte value="xd"/>
I destinatari restano come sono.</source>
        <translation>Protokoll dieses Versands löschen?<byte value="xd"/>
Die Empfänger bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>Eliminare il registro di tutti gli invii?<byte value="xd"/>
I destinatari restano come sono.</source>
        <translation>Protokoll aller Sendungen löschen?<byte value="xd"/>
Die Empfänger bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source> Prova messaggio</source>
        <translation> Nachricht prüfen</translation>
    </message>
    <message>
        <source>File messaggio:</source>
        <translation>Nachrichtendatei:</translation>
    </message>
    <message>
        <source>Destinatario:</source>
        <translation>Empfänger:</translation>
    </message>
    <message>
        <source>&amp;Precedente</source>
        <translation>&amp;Voriger</translation>
    </message>
    <message>
        <source>&amp;Successivo</source>
        <translation>&amp;Nächster</translation>
    </message>
    <message>
        <source>Cerca:</source>
        <translation>Suchen:</translation>
    </message>
    <message>
        <source>Ce&amp;rca</source>
        <translation>Suc&amp;hen</translation>
    </message>
    <message>
        <source>Oggetto:</source>
        <translation>Betreff:</translation>
    </message>
    <message>
        <source>Rilievi:</source>
        <translation>Befunde:</translation>
    </message>
    <message>
        <source>&amp;Vai al primo</source>
        <translation>&amp;Zum ersten</translation>
    </message>
    <message>
        <source>Account mittente:</source>
        <translation>Absenderkonto:</translation>
    </message>
    <message>
        <source>Indirizzo della prova:</source>
        <translation>Adresse für den Test:</translation>
    </message>
    <message>
        <source>&amp;Invia una copia di prova</source>
        <translation>&amp;Testkopie senden</translation>
    </message>
    <message>
        <source>Solo testo</source>
        <translation>Nur Text</translation>
    </message>
    <message>
        <source>Il messaggio come lo vede il destinatario</source>
        <translation>Die Nachricht, wie der Empfänger sie sieht</translation>
    </message>
    <message>
        <source>Il messaggio come lo legge chi non vede l&apos;HTML</source>
        <translation>Die Nachricht, wie sie liest, wer kein HTML sieht</translation>
    </message>
    <message>
        <source>Cerca il destinatario</source>
        <translation>Empfänger suchen</translation>
    </message>
    <message>
        <source>Messaggio in HTML</source>
        <translation>Nachricht in HTML</translation>
    </message>
    <message>
        <source>Messaggio di solo testo</source>
        <translation>Nachricht als reiner Text</translation>
    </message>
    <message>
        <source>Forme del messaggio</source>
        <translation>Formen der Nachricht</translation>
    </message>
    <message>
        <source>Mostra il messaggio del destinatario selezionato precedente</source>
        <translation>Zeigt die Nachricht des vorigen ausgewählten Empfängers</translation>
    </message>
    <message>
        <source>Mostra il messaggio del destinatario selezionato successivo</source>
        <translation>Zeigt die Nachricht des nächsten ausgewählten Empfängers</translation>
    </message>
    <message>
        <source>Interrompe l&apos;invio della copia di prova</source>
        <translation>Bricht das Senden der Testkopie ab</translation>
    </message>
    <message>
        <source>Mostra il primo destinatario di questo rilievo</source>
        <translation>Zeigt den ersten Empfänger dieses Befunds</translation>
    </message>
    <message>
        <source>Apri messaggio</source>
        <translation>Nachricht öffnen</translation>
    </message>
    <message>
        <source>Nessun messaggio: salvarne uno nell&apos;editor o sceglierlo con il pulsante &quot;...&quot;.</source>
        <translation>Keine Nachricht: eine im Editor speichern oder mit der Schaltfläche „...“ wählen.</translation>
    </message>
    <message>
        <source>I destinatari non si possono leggere: %1</source>
        <translation>Die Empfänger lassen sich nicht lesen: %1</translation>
    </message>
    <message>
        <source>Nessun destinatario è selezionato: il messaggio si vede con i suoi segnaposto.</source>
        <translation>Kein Empfänger ausgewählt: Die Nachricht ist mit ihren Platzhaltern zu sehen.</translation>
    </message>
    <message>
        <source>Questa copia non si può mostrare: %1</source>
        <translation>Diese Kopie lässt sich nicht zeigen: %1</translation>
    </message>
    <message>
        <source>non c&apos;è</source>
        <translation>fehlt</translation>
    </message>
    <message>
        <source>Nessun allegato.</source>
        <translation>Keine Anlagen.</translation>
    </message>
    <message>
        <source>Allegati: %1.</source>
        <translation>Anlagen: %1.</translation>
    </message>
    <message>
        <source>Dimensione non nota: manca l&apos;account mittente.</source>
        <translation>Größe unbekannt: Das Absenderkonto fehlt.</translation>
    </message>
    <message>
        <source>Il messaggio non può partire: %1</source>
        <translation>Die Nachricht kann nicht abgehen: %1</translation>
    </message>
    <message>
        <source>Messaggio intero: %1.</source>
        <translation>Ganze Nachricht: %1.</translation>
    </message>
    <message>
        <source>Ricerca in corso…</source>
        <translation>Suche läuft…</translation>
    </message>
    <message>
        <source>Nessun destinatario selezionato contiene &quot;%1&quot;.</source>
        <translation>Kein ausgewählter Empfänger enthält „%1“.</translation>
    </message>
    <message>
        <source>Scegliere un messaggio prima di inviare la prova.</source>
        <translation>Vor dem Senden des Tests eine Nachricht wählen.</translation>
    </message>
    <message>
        <source>Nessun account: crearne uno con il comando &quot;Imposta Account&quot;.</source>
        <translation>Kein Konto: eines mit dem Befehl „Konten einrichten“ erstellen.</translation>
    </message>
    <message>
        <source>L&apos;indirizzo della prova non è valido.</source>
        <translation>Die Adresse für den Test ist ungültig.</translation>
    </message>
    <message>
        <source>La prova non è stata inviata.</source>
        <translation>Der Test wurde nicht gesendet.</translation>
    </message>
    <message>
        <source>Invio della prova a %1… Esc per interrompere.</source>
        <translation>Test wird an %1 gesendet… Esc bricht ab.</translation>
    </message>
    <message>
        <source>La copia di prova porta con sé questi file di questo computer.<byte value="xd"/>
Vuoi inviarli?</source>
        <translation>Die Testkopie nimmt diese Dateien dieses Computers mit.<byte value="xd"/>
Möchten Sie sie senden?</translation>
    </message>
    <message>
        <source>La prova non è stata consegnata. Invio interrotto.</source>
        <translation>Der Test wurde nicht zugestellt. Senden abgebrochen.</translation>
    </message>
    <message>
        <source>La prova è stata accettata dal server per %1.</source>
        <translation>Der Server hat den Test für %1 angenommen.</translation>
    </message>
    <message>
        <source>La prova non è stata consegnata.</source>
        <translation>Der Test wurde nicht zugestellt.</translation>
    </message>
    <message>
        <source>Il server ha risposto: %1</source>
        <translation>Der Server hat geantwortet: %1</translation>
    </message>
    <message>
        <source>I campi dei destinatari non si possono controllare: %1</source>
        <translation>Die Felder der Empfänger lassen sich nicht prüfen: %1</translation>
    </message>
    <message>
        <source>Rilievi (controllo dei destinatari in corso):</source>
        <translation>Befunde (Empfänger werden geprüft):</translation>
    </message>
    <message>
        <source>Rilievi: nessuno</source>
        <translation>Befunde: keine</translation>
    </message>
    <message>
        <source>Rilievi: %1</source>
        <translation>Befunde: %1</translation>
    </message>
    <message>
        <source>Dall&apos;avvio del programma non è stata fatta nessuna importazione.</source>
        <translation>Seit dem Start des Programms wurde nichts importiert.</translation>
    </message>
    <message>
        <source>Da %1, %2.
Importate %3, rifiutate %4.</source>
        <translation>Aus %1, %2.
Übernommen %3, abgelehnt %4.</translation>
    </message>
    <message>
        <source>Nel database ne sono rimaste %1: le ultime non sono state scritte.</source>
        <translation>In der Datenbank sind %1 geblieben: Die letzten wurden nicht geschrieben.</translation>
    </message>
    <message>
        <source>L&apos;elenco ha le prime %1 righe importate e le prime %1 rifiutate.</source>
        <translation>Die Liste hat die ersten %1 übernommenen und die ersten %1 abgelehnten Zeilen.</translation>
    </message>
    <message>
        <source>Righe rifiutate</source>
        <translation>Abgelehnte Zeilen</translation>
    </message>
    <message>
        <source>Righe importate</source>
        <translation>Übernommene Zeilen</translation>
    </message>
    <message>
        <source>Tutte le righe</source>
        <translation>Alle Zeilen</translation>
    </message>
    <message>
        <source>Co&amp;pia</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Ultima importazione</source>
        <translation>Letzter Import</translation>
    </message>
    <message>
        <source>Righe dell&apos;ultima importazione</source>
        <translation>Zeilen des letzten Imports</translation>
    </message>
    <message>
        <source>Riga</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Testo</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>&amp;Mostra:</source>
        <translation>&amp;Zeigen:</translation>
    </message>
    <message>
        <source>Importata</source>
        <translation>Übernommen</translation>
    </message>
    <message>
        <source>Rifiutata</source>
        <translation>Abgelehnt</translation>
    </message>
    <message>
        <source>(cartella perduta)</source>
        <translation>(verlorener Ordner)</translation>
    </message>
    <message>
        <source>%1 (cartella perduta)</source>
        <translation>%1 (verlorener Ordner)</translation>
    </message>
    <message>
        <source>Indirizzi doppi</source>
        <translation>Doppelte Adressen</translation>
    </message>
    <message>
        <source>Numero</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Con &quot;Sì&quot;</source>
        <translation>Mit „Ja“</translation>
    </message>
    <message>
        <source>Resta selezionato</source>
        <translation>Bleibt ausgewählt</translation>
    </message>
    <message>
        <source>Viene deselezionato</source>
        <translation>Wird abgewählt</translation>
    </message>
    <message numerus="yes">
        <source>%Ln indirizzi sono selezionati più di una volta.</source>
        <translation>
            <numerusform>%Ln Adresse ist mehr als einmal ausgewählt.</numerusform>
            <numerusform>%Ln Adressen sind mehr als einmal ausgewählt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Deselezionare i %Ln doppioni, uno escluso per indirizzo?</source>
        <translation>
            <numerusform>Das Doppel abwählen?</numerusform>
            <numerusform>Die %Ln Doppel abwählen, alle bis auf eines je Adresse?</numerusform>
        </translation>
    </message>
    <message>
        <source>L&apos;elenco mostra i primi %1 destinatari.</source>
        <translation>Die Liste zeigt die ersten %1 Empfänger.</translation>
    </message>
    <message>
        <source>Nessun indirizzo è selezionato più di una volta.</source>
        <translation>Keine Adresse ist mehr als einmal ausgewählt.</translation>
    </message>
    <message>
        <source>Impossibile controllare gli indirizzi.</source>
        <translation>Die Adressen lassen sich nicht prüfen.</translation>
    </message>
    <message>
        <source>Errore %1:<byte value="xd"/>
<byte value="xd"/>
%2</source>
        <translation>Fehler %1:<byte value="xd"/>
<byte value="xd"/>
%2</translation>
    </message>
    <message>
        <source>Ricerca del server di posta non riuscita: %1. Riprovare più tardi.</source>
        <translation>Die Suche nach dem Mailserver ist gescheitert: %1. Versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>file di testo </source>
        <translation>Textdatei </translation>
    </message>
    <message>
        <source>Ricerca di %1 nel DNS non riuscita: %2. Riprovare più tardi.</source>
        <translation>Die Suche nach %1 im DNS ist gescheitert: %2. Später noch einmal versuchen.</translation>
    </message>
    <message>
        <source>il DNS risponde con il codice di errore %1</source>
        <translation>das DNS antwortet mit dem Fehlercode %1</translation>
    </message>
    <message>
        <source>la risposta del DNS è danneggiata</source>
        <translation>die Antwort des DNS ist beschädigt</translation>
    </message>
    <message>
        <source>la risposta del DNS ha troppi record</source>
        <translation>die Antwort des DNS hat zu viele Einträge</translation>
    </message>
    <message>
        <source>il DNS non risponde</source>
        <translation>das DNS antwortet nicht</translation>
    </message>
    <message>
        <source>nessun server DNS è raggiungibile</source>
        <translation>kein DNS-Server ist erreichbar</translation>
    </message>
    <message>
        <source>il DNS risponde con un guasto (SERVFAIL)</source>
        <translation>das DNS antwortet mit einer Störung (SERVFAIL)</translation>
    </message>
    <message>
        <source>il DNS rifiuta la domanda (REFUSED)</source>
        <translation>das DNS lehnt die Frage ab (REFUSED)</translation>
    </message>
    <message>
        <source>il DNS non conosce domande di questo tipo (NOTIMP)</source>
        <translation>das DNS kennt keine Fragen dieser Art (NOTIMP)</translation>
    </message>
    <message>
        <source>il DNS non capisce la domanda (FORMERR)</source>
        <translation>das DNS versteht die Frage nicht (FORMERR)</translation>
    </message>
    <message>
        <source>il DNS ha dato una risposta che non si può usare</source>
        <translation>das DNS hat eine Antwort gegeben, die nicht brauchbar ist</translation>
    </message>
    <message>
        <source>il DNS di questo computer non è impostato</source>
        <translation>das DNS dieses Computers ist nicht eingestellt</translation>
    </message>
    <message>
        <source>Ricerca non riuscita: questa cartella non si può leggere</source>
        <translation>Suche gescheitert: Dieser Ordner kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Trovati: %1. Il database è usato da un altro programma: la ricerca riprende quando è libero.</source>
        <translation>Gefunden: %1. Ein anderes Programm verwendet die Datenbank: Die Suche geht weiter, sobald sie frei ist.</translation>
    </message>
    <message>
        <source>; questa cartella non si può leggere</source>
        <translation>; dieser Ordner kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>La prova può essere stata consegnata: il server ha ricevuto tutto il messaggio e non ha risposto.</source>
        <translation>Der Test wurde vielleicht zugestellt: Der Server hat die ganze Nachricht erhalten und nicht geantwortet.</translation>
    </message>
    <message>
        <source>Non c&apos;è nessuna rubrica.</source>
        <translation>Es gibt kein Adressbuch.</translation>
    </message>
    <message>
        <source>Lettura interrotta.</source>
        <translation>Lesen abgebrochen.</translation>
    </message>
    <message>
        <source>Il lettore di Outlook non c&apos;è.</source>
        <translation>Das Leseprogramm für Outlook fehlt.</translation>
    </message>
    <message>
        <source>Outlook non ha risposto in tempo.</source>
        <translation>Outlook hat nicht rechtzeitig geantwortet.</translation>
    </message>
    <message>
        <source>I contatti di Outlook non sono leggibili.</source>
        <translation>Die Outlook-Kontakte sind nicht lesbar.</translation>
    </message>
    <message>
        <source>La rubrica non è leggibile.</source>
        <translation>Das Adressbuch ist nicht lesbar.</translation>
    </message>
    <message>
        <source>Impossibile leggere la rubrica.</source>
        <translation>Das Adressbuch lässt sich nicht lesen.</translation>
    </message>
    <message>
        <source>La rubrica cambia di continuo.</source>
        <translation>Das Adressbuch ändert sich ständig.</translation>
    </message>
    <message>
        <source>La rubrica non esiste.</source>
        <translation>Das Adressbuch gibt es nicht.</translation>
    </message>
    <message>
        <source>Il corpo del messaggio non si può aprire: </source>
        <translation>Der Nachrichtentext lässt sich nicht öffnen: </translation>
    </message>
    <message>
        <source>è troppo grande (più di %1 milioni di caratteri).</source>
        <translation>Er ist zu groß (mehr als %1 Millionen Zeichen).</translation>
    </message>
    <message>
        <source>ha troppi elementi (più di %1).</source>
        <translation>Er hat zu viele Elemente (mehr als %1).</translation>
    </message>
    <message>
        <source>un elemento ha troppi attributi (più di %1).</source>
        <translation>Ein Element hat zu viele Attribute (mehr als %1).</translation>
    </message>
    <message>
        <source>ha troppi elementi uno dentro l&apos;altro (più di %1).</source>
        <translation>Er hat zu viele ineinander geschachtelte Elemente (mehr als %1).</translation>
    </message>
    <message>
        <source>il suo codice HTML è troppo intricato.</source>
        <translation>Sein HTML-Code ist zu verwickelt.</translation>
    </message>
    <message>
        <source>Impossibile mostrare il messaggio. Il testo è conservato.</source>
        <translation>Die Nachricht lässt sich nicht zeigen. Der Text bleibt erhalten.</translation>
    </message>
    <message>
        <source>Impossibile caricare la vista dei messaggi: %1</source>
        <translation>Die Nachrichtenansicht lässt sich nicht laden: %1</translation>
    </message>
    <message>
        <source>Impossibile stampare il messaggio.</source>
        <translation>Die Nachricht lässt sich nicht drucken.</translation>
    </message>
    <message>
        <source>Impossibile scrivere %1: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>La stampante non ha preso il messaggio. %1</source>
        <translation>Der Drucker hat die Nachricht nicht angenommen. %1</translation>
    </message>
    <message>
        <source>La vista del messaggio non risponde.</source>
        <translation>Die Nachrichtenansicht antwortet nicht.</translation>
    </message>
    <message>
        <source>Il browser non ha dato alcuna risposta in tempo.</source>
        <translation>Der Browser hat nicht rechtzeitig geantwortet.</translation>
    </message>
    <message>
        <source>Per %1 manca il client_id: va scritto nel file %2, dopo aver registrato il programma presso il fornitore.</source>
        <translation>Für %1 fehlt die client_id: in die Datei %2 schreiben, nachdem das Programm beim Anbieter registriert ist.</translation>
    </message>
    <message>
        <source>Il consenso non è stato dato.</source>
        <translation>Die Zustimmung wurde nicht erteilt.</translation>
    </message>
    <message>
        <source>Il fornitore ha rifiutato la richiesta: %1</source>
        <translation>Der Anbieter hat die Anfrage abgelehnt: %1</translation>
    </message>
    <message>
        <source>Il fornitore non accetta la risposta del browser: riprovare.</source>
        <translation>Der Anbieter nimmt die Antwort des Browsers nicht an: noch einmal versuchen.</translation>
    </message>
    <message>
        <source>Manca il file %1.</source>
        <translation>Die Datei %1 fehlt.</translation>
    </message>
    <message>
        <source>Impossibile leggere il file %1: %2.</source>
        <translation>Die Datei %1 kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>non è un elenco</source>
        <translation>ist keine Liste</translation>
    </message>
    <message>
        <source>l&apos;elenco è vuoto</source>
        <translation>die Liste ist leer</translation>
    </message>
    <message>
        <source>una voce è vuota</source>
        <translation>ein Eintrag ist leer</translation>
    </message>
    <message>
        <source>non è un indirizzo</source>
        <translation>ist keine Adresse</translation>
    </message>
    <message>
        <source>deve cominciare con https://</source>
        <translation>muss mit https:// beginnen</translation>
    </message>
    <message>
        <source>non può contenere né un utente né un frammento</source>
        <translation>darf weder Benutzer noch Fragment enthalten</translation>
    </message>
    <message>
        <source>non è un oggetto</source>
        <translation>ist kein Objekt</translation>
    </message>
    <message>
        <source> è del programma</source>
        <translation> gehört dem Programm</translation>
    </message>
    <message>
        <source>non è un testo</source>
        <translation>ist kein Text</translation>
    </message>
    <message>
        <source>il testo è troppo lungo o contiene caratteri non ammessi</source>
        <translation>der Text ist zu lang oder enthält unzulässige Zeichen</translation>
    </message>
    <message>
        <source>una voce contiene caratteri non ammessi</source>
        <translation>ein Eintrag enthält unzulässige Zeichen</translation>
    </message>
    <message>
        <source>una voce non è il nome di un server</source>
        <translation>ein Eintrag ist kein Servername</translation>
    </message>
    <message>
        <source>sono ammessi solo 127.0.0.1, localhost e [::1]</source>
        <translation>nur 127.0.0.1, localhost und [::1] sind zulässig</translation>
    </message>
    <message>
        <source>Il file %1 non è valido: %2.</source>
        <translation>Die Datei %1 ist ungültig: %2.</translation>
    </message>
    <message>
        <source>non contiene un oggetto</source>
        <translation>sie enthält kein Objekt</translation>
    </message>
    <message>
        <source>non è JSON dal byte %1</source>
        <translation>ab Byte %1 kein JSON</translation>
    </message>
    <message>
        <source>il nome di un fornitore può contenere solo a-z, 0-9 e &quot;-&quot;</source>
        <translation>der Name eines Anbieters darf nur a-z, 0-9 und „-“ enthalten</translation>
    </message>
    <message>
        <source> non è un oggetto</source>
        <translation> ist kein Objekt</translation>
    </message>
    <message>
        <source> è scritto due volte</source>
        <translation> steht zweimal da</translation>
    </message>
    <message>
        <source>Impossibile attendere la risposta del browser: %1</source>
        <translation>Auf die Antwort des Browsers kann nicht gewartet werden: %1</translation>
    </message>
    <message>
        <source>Richiesta non valida.</source>
        <translation>Ungültige Anfrage.</translation>
    </message>
    <message>
        <source>Pagina inesistente.</source>
        <translation>Diese Seite gibt es nicht.</translation>
    </message>
    <message>
        <source>Questa risposta non appartiene all&apos;accesso in corso.</source>
        <translation>Diese Antwort gehört nicht zur laufenden Anmeldung.</translation>
    </message>
    <message>
        <source>Risposta ricevuta: si può chiudere questa pagina e tornare a Vestrola.</source>
        <translation>Antwort erhalten: Sie können diese Seite schließen und zu Vestrola zurückkehren.</translation>
    </message>
    <message>
        <source>L&apos;accesso non è stato concesso: si può chiudere questa pagina.</source>
        <translation>Die Anmeldung wurde nicht gewährt: Sie können diese Seite schließen.</translation>
    </message>
    <message>
        <source>La risposta del fornitore non è valida.</source>
        <translation>Die Antwort des Anbieters ist ungültig.</translation>
    </message>
    <message>
        <source>Il consenso è scaduto o è stato ritirato: nella finestra degli account accedere di nuovo con il browser.</source>
        <translation>Die Zustimmung ist abgelaufen oder zurückgezogen: im Kontenfenster noch einmal mit dem Browser anmelden.</translation>
    </message>
    <message>
        <source>Il fornitore non riconosce client_id o client_secret: %1</source>
        <translation>Der Anbieter erkennt client_id oder client_secret nicht an: %1</translation>
    </message>
    <message>
        <source>Il consenso dato non comprende l&apos;invio della posta.</source>
        <translation>Die erteilte Zustimmung umfasst das Senden von E-Mail nicht.</translation>
    </message>
    <message>
        <source>Impossibile leggere il file %1</source>
        <translation>Die Datei %1 kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Manca il consenso del fornitore: nella finestra degli account accedere con il browser.</source>
        <translation>Die Zustimmung des Anbieters fehlt: im Kontenfenster mit dem Browser anmelden.</translation>
    </message>
    <message>
        <source>Il file %1 è un collegamento.</source>
        <translation>Die Datei %1 ist eine Verknüpfung.</translation>
    </message>
    <message>
        <source>Il file %1 è danneggiato: nella finestra degli account accedere di nuovo con il browser.</source>
        <translation>Die Datei %1 ist beschädigt: im Kontenfenster noch einmal mit dem Browser anmelden.</translation>
    </message>
    <message>
        <source>Impossibile scrivere il file %1.</source>
        <translation>Die Datei %1 kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Il fornitore non è raggiungibile: %1</source>
        <translation>Der Anbieter ist nicht erreichbar: %1</translation>
    </message>
    <message>
        <source>tempo scaduto.</source>
        <translation>Zeit abgelaufen.</translation>
    </message>
    <message>
        <source>La risposta del fornitore è troppo grande.</source>
        <translation>Die Antwort des Anbieters ist zu groß.</translation>
    </message>
    <message>
        <source>Il fornitore rimanda a un altro indirizzo, che non viene seguito.</source>
        <translation>Der Anbieter verweist auf eine andere Adresse, der nicht gefolgt wird.</translation>
    </message>
    <message>
        <source>errore %1 del suo server.</source>
        <translation>Fehler %1 seines Servers.</translation>
    </message>
    <message>
        <source>Il fornitore ha rifiutato la richiesta.</source>
        <translation>Der Anbieter hat die Anfrage abgelehnt.</translation>
    </message>
    <message>
        <source>Il consenso è scaduto e il fornitore non permette di rinnovarlo: nella finestra degli account accedere di nuovo con il browser.</source>
        <translation>Die Zustimmung ist abgelaufen, und der Anbieter lässt sie nicht erneuern: im Kontenfenster noch einmal mit dem Browser anmelden.</translation>
    </message>
    <message>
        <source>Il server %1 non appartiene a un fornitore del file %2: nessun token gli viene inviato.</source>
        <translation>Der Server %1 gehört zu keinem Anbieter der Datei %2: Ihm wird kein Token gesendet.</translation>
    </message>
    <message>
        <source>Il portachiavi del desktop non c&apos;è.</source>
        <translation>Es gibt keinen Schlüsselbund des Desktops.</translation>
    </message>
    <message>
        <source>Attesa del portachiavi interrotta.</source>
        <translation>Warten auf den Schlüsselbund abgebrochen.</translation>
    </message>
    <message>
        <source>Il portachiavi non ha questa password.</source>
        <translation>Der Schlüsselbund hat dieses Passwort nicht.</translation>
    </message>
    <message>
        <source>Il portachiavi non risponde: </source>
        <translation>Der Schlüsselbund antwortet nicht: </translation>
    </message>
    <message>
        <source>Il portachiavi non conserva la password così com&apos;è.</source>
        <translation>Der Schlüsselbund bewahrt das Passwort nicht unverändert auf.</translation>
    </message>
    <message>
        <source>Non è un file</source>
        <translation>Keine Datei</translation>
    </message>
    <message>
        <source>Il percorso è un collegamento</source>
        <translation>Der Pfad ist eine Verknüpfung</translation>
    </message>
    <message>
        <source>Il file appartiene a un altro utente</source>
        <translation>Die Datei gehört einem anderen Benutzer</translation>
    </message>
    <message>
        <source>Il file può essere letto da altri utenti</source>
        <translation>Andere Benutzer können die Datei lesen</translation>
    </message>
    <message>
        <source>Il percorso è un collegamento di un altro utente</source>
        <translation>Der Pfad ist eine Verknüpfung eines anderen Benutzers</translation>
    </message>
    <message>
        <source>Il file è in uso</source>
        <translation>Die Datei wird verwendet</translation>
    </message>
    <message>
        <source>%1 è un collegamento di un altro utente</source>
        <translation>%1 ist eine Verknüpfung eines anderen Benutzers</translation>
    </message>
    <message>
        <source>altri utenti possono %1 %2: deve essere un file dell&apos;utente con i permessi %3</source>
        <translation>andere Benutzer können %2 %1: Es muss eine Datei des Benutzers mit den Rechten %3 sein</translation>
    </message>
    <message>
        <source>leggere o scrivere</source>
        <translation>lesen oder schreiben</translation>
    </message>
    <message>
        <source>scrivere</source>
        <translation>schreiben</translation>
    </message>
    <message>
        <source>Impossibile scrivere il file </source>
        <translation>Nicht schreibbar ist die Datei </translation>
    </message>
    <message>
        <source>Impossibile preparare la cartella </source>
        <translation>Nicht vorzubereiten ist der Ordner </translation>
    </message>
    <message>
        <source>Impossibile aprire </source>
        <translation>Nicht zu öffnen ist </translation>
    </message>
    <message>
        <source>Un comando non può eseguire una SELECT.</source>
        <translation>Ein Befehl kann kein SELECT ausführen.</translation>
    </message>
    <message>
        <source>Tempo scaduto.</source>
        <translation>Zeitüberschreitung.</translation>
    </message>
    <message>
        <source>Formato della stringa di connessione non valido.</source>
        <translation>Ungültiges Format der Verbindungszeichenfolge.</translation>
    </message>
    <message>
        <source>Impossibile trovare il provider &quot;%1&quot;.</source>
        <translation>Der Provider „%1“ wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Nessun file di database indicato.</source>
        <translation>Es ist keine Datenbankdatei angegeben.</translation>
    </message>
    <message>
        <source>Tipo di dati non corrispondente nel campo &quot;%1&quot;.</source>
        <translation>Unverträglicher Datentyp im Feld „%1“.</translation>
    </message>
    <message>
        <source>Valore troppo grande per il campo &quot;%1&quot;.</source>
        <translation>Der Wert ist zu groß für das Feld „%1“.</translation>
    </message>
    <message>
        <source>L&apos;istruzione non è una INSERT di valori.</source>
        <translation>Die Anweisung ist kein INSERT von Werten.</translation>
    </message>
    <message>
        <source>L&apos;identità di un record non può essere scelta.</source>
        <translation>Die Identität eines Datensatzes ist nicht wählbar.</translation>
    </message>
    <message>
        <source>Il record è stato eliminato.</source>
        <translation>Der Datensatz wurde gelöscht.</translation>
    </message>
    <message>
        <source>Nessun record corrente.</source>
        <translation>Kein aktueller Datensatz.</translation>
    </message>
    <message>
        <source>Operazione non consentita se l&apos;oggetto è chiuso.</source>
        <translation>Der Vorgang ist bei geschlossenem Objekt nicht erlaubt.</translation>
    </message>
    <message>
        <source>Il recordset corrente non supporta l&apos;aggiornamento.</source>
        <translation>Das aktuelle Recordset unterstützt keine Änderung.</translation>
    </message>
    <message>
        <source>Impossibile trovare il campo &quot;%1&quot;.</source>
        <translation>Das Feld „%1“ wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>L&apos;origine di un recordset deve essere una SELECT.</source>
        <translation>Die Quelle eines Recordsets muss ein SELECT sein.</translation>
    </message>
    <message>
        <source>Errore interno del database: una riga ha perso il suo posto.</source>
        <translation>Interner Fehler der Datenbank: Eine Zeile hat ihren Platz verloren.</translation>
    </message>
    <message>
        <source>Impossibile avviare il motore SQL.</source>
        <translation>Die SQL-Engine lässt sich nicht starten.</translation>
    </message>
    <message>
        <source>La struttura del database è stata modificata.</source>
        <translation>Der Aufbau der Datenbank wurde geändert.</translation>
    </message>
    <message>
        <source>Un&apos;altra istruzione è in attesa del database.</source>
        <translation>Eine andere Anweisung wartet auf die Datenbank.</translation>
    </message>
    <message>
        <source>Errore di sintassi nell&apos;istruzione SQL vicino a &quot;%1&quot;.</source>
        <translation>Syntaxfehler in der SQL-Anweisung bei „%1“.</translation>
    </message>
    <message>
        <source>Il numero dei valori non corrisponde al numero dei campi di destinazione.</source>
        <translation>Die Anzahl der Werte entspricht nicht der Anzahl der Zielfelder.</translation>
    </message>
    <message>
        <source>Istruzione SQL non ammessa.</source>
        <translation>SQL-Anweisung nicht erlaubt.</translation>
    </message>
    <message>
        <source>Istruzione SQL non valida.</source>
        <translation>Ungültige SQL-Anweisung.</translation>
    </message>
    <message>
        <source>La tabella &quot;%1&quot; è riservata al sistema.</source>
        <translation>Die Tabelle „%1“ ist dem System vorbehalten.</translation>
    </message>
    <message>
        <source>La tabella &quot;%1&quot; non può essere usata nelle istruzioni SQL.</source>
        <translation>Die Tabelle „%1“ ist in SQL-Anweisungen nicht verwendbar.</translation>
    </message>
    <message>
        <source>L&apos;istruzione non è una SELECT.</source>
        <translation>Die Anweisung ist kein SELECT.</translation>
    </message>
    <message>
        <source>L&apos;istruzione deve leggere tutte le colonne di una tabella.</source>
        <translation>Die Anweisung muss alle Spalten einer Tabelle lesen.</translation>
    </message>
    <message>
        <source>Il record è troppo lungo.</source>
        <translation>Der Datensatz ist zu lang.</translation>
    </message>
    <message>
        <source>Troppi record per essere mostrati.</source>
        <translation>Zu viele Datensätze zum Anzeigen.</translation>
    </message>
    <message>
        <source>carattere nullo</source>
        <translation>Nullzeichen</translation>
    </message>
    <message>
        <source>commento</source>
        <translation>Kommentar</translation>
    </message>
    <message>
        <source>parametro</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>virgolette fuori da un testo</source>
        <translation>Anführungszeichen außerhalb eines Textes</translation>
    </message>
    <message>
        <source>manca un apice di chiusura</source>
        <translation>ein schließender Apostroph fehlt</translation>
    </message>
    <message>
        <source>manca una parentesi quadra di chiusura</source>
        <translation>eine schließende eckige Klammer fehlt</translation>
    </message>
    <message>
        <source>manca un cancelletto di chiusura</source>
        <translation>ein schließendes Rautezeichen fehlt</translation>
    </message>
    <message>
        <source>Istruzione SQL non ammessa: %1.</source>
        <translation>SQL-Anweisung nicht erlaubt: %1.</translation>
    </message>
    <message>
        <source>Errore di sintassi nell&apos;istruzione SQL: %1.</source>
        <translation>Syntaxfehler in der SQL-Anweisung: %1.</translation>
    </message>
    <message>
        <source>forma non prevista</source>
        <translation>unerwartete Form</translation>
    </message>
    <message>
        <source>i valori da inserire non sono leggibili</source>
        <translation>die einzufügenden Werte sind nicht lesbar</translation>
    </message>
    <message>
        <source>la data #%1# non è valida</source>
        <translation>das Datum #%1# ist ungültig</translation>
    </message>
    <message>
        <source>testo troppo lungo</source>
        <translation>Text zu lang</translation>
    </message>
    <message>
        <source>più di una istruzione</source>
        <translation>mehr als eine Anweisung</translation>
    </message>
    <message>
        <source>istruzione vuota</source>
        <translation>leere Anweisung</translation>
    </message>
    <message>
        <source>Il disco è pieno: il file &quot;%1&quot; non trova posto.</source>
        <translation>Der Datenträger ist voll: kein Platz für die Datei „%1“.</translation>
    </message>
    <message>
        <source>Impossibile aprire il file &quot;%1&quot;.</source>
        <translation>Die Datei „%1“ kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>L&apos;indirizzo di posta elettronica non è valido.</source>
        <translation>Die E-Mail-Adresse ist ungültig.</translation>
    </message>
    <message>
        <source>L&apos;allegato %1 %2.</source>
        <translation>Die Anlage %1 %2.</translation>
    </message>
    <message>
        <source>non esiste</source>
        <translation>existiert nicht</translation>
    </message>
    <message>
        <source>è troppo grande</source>
        <translation>ist zu groß</translation>
    </message>
    <message>
        <source>Il nome utente contiene un carattere non ammesso.</source>
        <translation>Der Benutzername enthält ein unzulässiges Zeichen.</translation>
    </message>
    <message>
        <source>non si può leggere</source>
        <translation>lässt sich nicht lesen</translation>
    </message>
    <message>
        <source>non è il file che è stato confermato</source>
        <translation>ist nicht die bestätigte Datei</translation>
    </message>
    <message>
        <source>Invio interrotto.</source>
        <translation>Versand abgebrochen.</translation>
    </message>
    <message>
        <source>Risposta in ritardo al messaggio di prima</source>
        <translation>Verspätete Antwort auf die vorige Nachricht</translation>
    </message>
    <message>
        <source>Il destinatario non è stato letto: nessun invio.</source>
        <translation>Der Empfänger wurde nicht gelesen: kein Versand.</translation>
    </message>
    <message>
        <source>L&apos;invio è stato fermato: nessun invio fino al prossimo avvio.</source>
        <translation>Der Versand wurde angehalten: kein Versand bis zum nächsten Start.</translation>
    </message>
    <message>
        <source>L&apos;indirizzo del destinatario non è stato letto: nessun invio.</source>
        <translation>Die Adresse des Empfängers wurde nicht gelesen: kein Versand.</translation>
    </message>
    <message>
        <source>Il messaggio per questo destinatario è già stato accettato in questo invio.</source>
        <translation>Die Nachricht für diesen Empfänger wurde in diesem Versand schon angenommen.</translation>
    </message>
    <message>
        <source>Il messaggio per questo destinatario è già stato accettato.</source>
        <translation>Die Nachricht für diesen Empfänger wurde schon angenommen.</translation>
    </message>
    <message>
        <source>Non c&apos;è più spazio per ricordare i messaggi accettati.</source>
        <translation>Es ist kein Platz mehr, um die angenommenen Nachrichten zu vermerken.</translation>
    </message>
    <message>
        <source>Il destinatario è stato selezionato di nuovo.</source>
        <translation>Der Empfänger wurde erneut ausgewählt.</translation>
    </message>
    <message>
        <source>Il file %1 esiste già.</source>
        <translation>Die Datei %1 gibt es schon.</translation>
    </message>
    <message>
        <source>Non è possibile scrivere il file %1.</source>
        <translation>Die Datei %1 kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>La chiave non si può leggere.</source>
        <translation>Der Schlüssel kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Il dominio non è valido.</source>
        <translation>Die Domain ist ungültig.</translation>
    </message>
    <message>
        <source>Il dominio ha già una chiave o un selettore: %1.pem, %1.selector.</source>
        <translation>Die Domain hat schon einen Schlüssel oder einen Selektor: %1.pem, %1.selector.</translation>
    </message>
    <message>
        <source>Non è possibile creare la cartella %1.</source>
        <translation>Der Ordner %1 kann nicht erstellt werden.</translation>
    </message>
    <message>
        <source>La creazione della chiave non è riuscita.</source>
        <translation>Der Schlüssel konnte nicht erstellt werden.</translation>
    </message>
    <message>
        <source>Messaggio non firmato (DKIM): %1.</source>
        <translation>Nachricht nicht signiert (DKIM): %1.</translation>
    </message>
    <message>
        <source>il selettore manca o non è valido</source>
        <translation>der Selektor fehlt oder ist ungültig</translation>
    </message>
    <message>
        <source>la chiave manca o non è una chiave RSA</source>
        <translation>der Schlüssel fehlt oder ist kein RSA-Schlüssel</translation>
    </message>
    <message>
        <source>la chiave ha meno di %1 bit</source>
        <translation>der Schlüssel hat weniger als %1 Bit</translation>
    </message>
    <message>
        <source>la firma non è riuscita</source>
        <translation>das Signieren ist fehlgeschlagen</translation>
    </message>
    <message>
        <source>Il server non ha completato l&apos;autenticazione.</source>
        <translation>Der Server hat die Anmeldung nicht abgeschlossen.</translation>
    </message>
    <message>
        <source>Il server non accetta il consenso di OAuth 2.0 per l&apos;utente %1: %2</source>
        <translation>Der Server nimmt die OAuth-2.0-Zustimmung des Benutzers %1 nicht an: %2</translation>
    </message>
    <message>
        <source>La password non viene inviata in chiaro a %1, che non offre una connessione TLS. Per inviarla ugualmente scrivere il nome del server nel file %2.</source>
        <translation>Das Passwort wird nicht unverschlüsselt an %1 gesendet, der keine TLS-Verbindung anbietet. Um es trotzdem zu senden, den Namen des Servers in die Datei %2 schreiben.</translation>
    </message>
    <message>
        <source>Il server non offre l&apos;accesso con OAuth 2.0.</source>
        <translation>Der Server bietet keine Anmeldung mit OAuth 2.0 an.</translation>
    </message>
    <message>
        <source>Il server non offre un metodo di autenticazione conosciuto.</source>
        <translation>Der Server bietet kein bekanntes Anmeldeverfahren an.</translation>
    </message>
    <message>
        <source>Il file &quot;%1&quot; non si può eliminare.</source>
        <translation>Die Datei „%1“ kann nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>La cartella &quot;%1&quot; non si può creare.</source>
        <translation>Der Ordner „%1“ kann nicht erstellt werden.</translation>
    </message>
    <message>
        <source>Il file &quot;%1&quot; non si può scrivere: %2</source>
        <translation>Die Datei „%1“ kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>Autenticazione non riuscita: %1</source>
        <translation>Anmeldung fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>Il nome utente o la password contengono un carattere non ammesso.</source>
        <translation>Benutzername oder Passwort enthält ein unzulässiges Zeichen.</translation>
    </message>
    <message>
        <source>Il server rifiuta il messaggio per le sue regole</source>
        <translation>Der Server lehnt die Nachricht nach seinen Regeln ab</translation>
    </message>
    <message>
        <source>Il server limita il numero o la frequenza degli invii</source>
        <translation>Der Server begrenzt Anzahl oder Häufigkeit der Sendungen</translation>
    </message>
    <message>
        <source>Il server considera il messaggio posta indesiderata (spam)</source>
        <translation>Der Server hält die Nachricht für unerwünscht (Spam)</translation>
    </message>
    <message>
        <source>%1, per ora, codice %2: %3</source>
        <translation>%1, vorerst, Code %2: %3</translation>
    </message>
    <message>
        <source>%1, codice %2: %3</source>
        <translation>%1, Code %2: %3</translation>
    </message>
    <message>
        <source>Server %1 non trovato.</source>
        <translation>Server %1 nicht gefunden.</translation>
    </message>
    <message>
        <source>Connessione rifiutata da %1, porta %2.</source>
        <translation>Verbindung von %1, Port %2, abgelehnt.</translation>
    </message>
    <message>
        <source>Il server ha chiuso la connessione.</source>
        <translation>Der Server hat die Verbindung geschlossen.</translation>
    </message>
    <message>
        <source>Errore di rete: %1</source>
        <translation>Netzwerkfehler: %1</translation>
    </message>
    <message>
        <source>Il dominio del destinatario non ha un server di posta.</source>
        <translation>Die Domain des Empfängers hat keinen Mailserver.</translation>
    </message>
    <message>
        <source>Risposta del server non valida: %1</source>
        <translation>Ungültige Antwort des Servers: %1</translation>
    </message>
    <message>
        <source>Risposta del server inattesa: %1 %2</source>
        <translation>Unerwartete Antwort des Servers: %1 %2</translation>
    </message>
    <message>
        <source>Il server non offre più la connessione TLS, che ha offerto in passato. Per dimenticarlo cancellare la sua riga dal file %1.</source>
        <translation>Der Server bietet die TLS-Verbindung, die er früher angeboten hat, nicht mehr an. Um das zu vergessen, seine Zeile aus der Datei %1 löschen.</translation>
    </message>
    <message>
        <source>Il server non accetta indirizzi con caratteri internazionali.</source>
        <translation>Der Server nimmt keine Adressen mit internationalen Zeichen an.</translation>
    </message>
    <message>
        <source>il certificato è autofirmato</source>
        <translation>das Zertifikat ist selbstsigniert</translation>
    </message>
    <message>
        <source>il certificato è scaduto</source>
        <translation>das Zertifikat ist abgelaufen</translation>
    </message>
    <message>
        <source>il certificato non è ancora valido</source>
        <translation>das Zertifikat ist noch nicht gültig</translation>
    </message>
    <message>
        <source>il certificato è di un altro server</source>
        <translation>das Zertifikat gehört einem anderen Server</translation>
    </message>
    <message>
        <source>l&apos;autorità che ha emesso il certificato non è attendibile</source>
        <translation>der Aussteller des Zertifikats ist nicht vertrauenswürdig</translation>
    </message>
    <message>
        <source>Il server ha aggiunto testo in chiaro alla risposta a STARTTLS.</source>
        <translation>Der Server hat der Antwort auf STARTTLS unverschlüsselten Text angefügt.</translation>
    </message>
    <message>
        <source>in chiaro</source>
        <translation>unverschlüsselt</translation>
    </message>
    <message>
        <source>%1, %2, certificato %3</source>
        <translation>%1, %2, Zertifikat %3</translation>
    </message>
    <message>
        <source>non verificato</source>
        <translation>nicht geprüft</translation>
    </message>
    <message>
        <source>valido</source>
        <translation>gültig</translation>
    </message>
    <message>
        <source>Connessione TLS non riuscita: %1.</source>
        <translation>TLS-Verbindung fehlgeschlagen: %1.</translation>
    </message>
    <message>
        <source>Il token di OAuth 2.0 non viene inviato a %1: la connessione non è protetta da TLS con un certificato valido.</source>
        <translation>Das OAuth-2.0-Token wird nicht an %1 gesendet: Die Verbindung ist nicht durch TLS mit gültigem Zertifikat geschützt.</translation>
    </message>
    <message>
        <source>Uso non valido di Null.</source>
        <translation>Ungültige Verwendung von Null.</translation>
    </message>
    <message>
        <source>Tipo non corrispondente.</source>
        <translation>Unverträglicher Typ.</translation>
    </message>
    <message>
        <source>Overflow.</source>
        <translation>Überlauf.</translation>
    </message>
    <message>
        <source>La tabella &quot;%1&quot; non ha un contatore.</source>
        <translation>Die Tabelle „%1“ hat keinen Zähler.</translation>
    </message>
    <message>
        <source>Il contatore della tabella &quot;%1&quot; è esaurito.</source>
        <translation>Der Zähler der Tabelle „%1“ ist erschöpft.</translation>
    </message>
    <message>
        <source>il catalogo non è leggibile</source>
        <translation>der Katalog ist nicht lesbar</translation>
    </message>
    <message>
        <source>la pagina %1 non contiene righe</source>
        <translation>Seite %1 enthält keine Zeilen</translation>
    </message>
    <message>
        <source>la pagina %1 ha troppe righe</source>
        <translation>Seite %1 hat zu viele Zeilen</translation>
    </message>
    <message>
        <source>le righe della pagina %1 si sovrappongono</source>
        <translation>die Zeilen der Seite %1 überlappen sich</translation>
    </message>
    <message>
        <source>la riga %1 della pagina %2 è fuori posto</source>
        <translation>Zeile %1 der Seite %2 liegt am falschen Platz</translation>
    </message>
    <message>
        <source>la pagina %1 non ha posto</source>
        <translation>Seite %1 hat keinen Platz</translation>
    </message>
    <message>
        <source>Password non valida.</source>
        <translation>Ungültiges Passwort.</translation>
    </message>
    <message>
        <source>il file &quot;%1&quot; è troncato</source>
        <translation>die Datei „%1“ ist abgeschnitten</translation>
    </message>
    <message>
        <source>La tabella &quot;%1&quot; è collegata a un altro file.</source>
        <translation>Die Tabelle „%1“ ist mit einer anderen Datei verknüpft.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; è una query, non una tabella.</source>
        <translation>„%1“ ist eine Abfrage, keine Tabelle.</translation>
    </message>
    <message>
        <source>Impossibile trovare la tabella &quot;%1&quot;.</source>
        <translation>Die Tabelle „%1“ wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Nessuna transazione è in corso.</source>
        <translation>Es läuft keine Transaktion.</translation>
    </message>
    <message>
        <source>Impossibile scrivere nella cartella di &quot;%1&quot;.</source>
        <translation>In den Ordner von „%1“ kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Il file &quot;%1&quot; è in uso da un altro programma.</source>
        <translation>Die Datei „%1“ wird von einem anderen Programm benutzt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; è il database aperto.</source>
        <translation>„%1“ ist die geöffnete Datenbank.</translation>
    </message>
    <message>
        <source>la definizione della tabella a pagina %1 è incompleta</source>
        <translation>die Tabellendefinition auf Seite %1 ist unvollständig</translation>
    </message>
    <message>
        <source>un nome nella definizione della tabella a pagina %1 non è valido</source>
        <translation>ein Name in der Tabellendefinition auf Seite %1 ist ungültig</translation>
    </message>
    <message>
        <source>la definizione della tabella a pagina %1 ha due campi con il nome &quot;%2&quot;</source>
        <translation>die Tabellendefinition auf Seite %1 hat zwei Felder mit dem Namen „%2“</translation>
    </message>
    <message>
        <source>la pagina %1 non è la definizione di una tabella</source>
        <translation>Seite %1 ist keine Tabellendefinition</translation>
    </message>
    <message>
        <source>la definizione della tabella a pagina %1 non finisce</source>
        <translation>die Tabellendefinition auf Seite %1 endet nicht</translation>
    </message>
    <message>
        <source>la definizione della tabella a pagina %1 non è leggibile</source>
        <translation>die Tabellendefinition auf Seite %1 ist nicht lesbar</translation>
    </message>
    <message>
        <source>un campo della tabella a pagina %1 non ha posto nelle righe</source>
        <translation>ein Feld der Tabelle auf Seite %1 hat keinen Platz in den Zeilen</translation>
    </message>
    <message>
        <source>un indice della tabella a pagina %1 non esiste</source>
        <translation>ein Index der Tabelle auf Seite %1 existiert nicht</translation>
    </message>
    <message>
        <source>disco pieno</source>
        <translation>Datenträger voll</translation>
    </message>
    <message>
        <source>lo spazio concesso all&apos;utente sul disco è esaurito</source>
        <translation>das Speicherkontingent des Benutzers ist erschöpft</translation>
    </message>
    <message>
        <source>il disco è di sola lettura</source>
        <translation>der Datenträger ist schreibgeschützt</translation>
    </message>
    <message>
        <source>permesso negato</source>
        <translation>Zugriff verweigert</translation>
    </message>
    <message>
        <source>il disco non riesce a leggere o scrivere</source>
        <translation>der Datenträger kann nicht lesen oder schreiben</translation>
    </message>
    <message>
        <source>il file supera la dimensione concessa</source>
        <translation>die Datei überschreitet die erlaubte Größe</translation>
    </message>
    <message>
        <source>il nome è un collegamento</source>
        <translation>der Name ist eine Verknüpfung</translation>
    </message>
    <message>
        <source>il file esiste già</source>
        <translation>die Datei gibt es schon</translation>
    </message>
    <message>
        <source>è una cartella</source>
        <translation>es ist ein Ordner</translation>
    </message>
    <message>
        <source>il file o la cartella non esiste</source>
        <translation>die Datei oder der Ordner existiert nicht</translation>
    </message>
    <message>
        <source>il nome è troppo lungo</source>
        <translation>der Name ist zu lang</translation>
    </message>
    <message>
        <source>troppi file aperti</source>
        <translation>zu viele offene Dateien</translation>
    </message>
    <message>
        <source>memoria esaurita</source>
        <translation>der Speicher ist erschöpft</translation>
    </message>
    <message>
        <source>il disco non conosce questa operazione</source>
        <translation>der Datenträger unterstützt diesen Vorgang nicht</translation>
    </message>
    <message>
        <source>il disco non è più raggiungibile</source>
        <translation>der Datenträger ist nicht mehr erreichbar</translation>
    </message>
    <message>
        <source>il file è in uso</source>
        <translation>die Datei wird benutzt</translation>
    </message>
    <message>
        <source>errore di sistema %1</source>
        <translation>Systemfehler %1</translation>
    </message>
    <message>
        <source>Errore del disco (%1) sul file &quot;%2&quot;: %3.</source>
        <translation>Datenträgerfehler (%1) bei der Datei „%2“: %3.</translation>
    </message>
    <message>
        <source>Impossibile trovare il file &quot;%1&quot;.</source>
        <translation>Die Datei „%1“ wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Impossibile aprire il file &quot;%1&quot;: %2.</source>
        <translation>Die Datei „%1“ kann nicht geöffnet werden: %2.</translation>
    </message>
    <message>
        <source>le tabelle nuove sono descritte male</source>
        <translation>die neuen Tabellen sind falsch beschrieben</translation>
    </message>
    <message>
        <source>le tabelle nuove sono troppe</source>
        <translation>es sind zu viele neue Tabellen</translation>
    </message>
    <message>
        <source>una tabella nuova ha troppe colonne</source>
        <translation>eine neue Tabelle hat zu viele Spalten</translation>
    </message>
    <message>
        <source>un nome non ha chiave</source>
        <translation>ein Name hat keinen Schlüssel</translation>
    </message>
    <message>
        <source>Il file &quot;%1&quot; esiste già.</source>
        <translation>Die Datei „%1“ gibt es schon.</translation>
    </message>
    <message>
        <source>Il database è danneggiato: %1.</source>
        <translation>Die Datenbank ist beschädigt: %1.</translation>
    </message>
    <message>
        <source>Errore interno del database: %1.</source>
        <translation>Interner Fehler der Datenbank: %1.</translation>
    </message>
    <message>
        <source>Il database ha raggiunto la dimensione massima di 2 GB.</source>
        <translation>Die Datenbank hat die maximale Größe von 2 GB erreicht.</translation>
    </message>
    <message>
        <source>Il database &quot;%1&quot; è in uso da un altro programma.</source>
        <translation>Die Datenbank „%1“ wird von einem anderen Programm benutzt.</translation>
    </message>
    <message>
        <source>Il database &quot;%1&quot; è aperto in un altro programma (%2): non può essere modificato.</source>
        <translation>Die Datenbank „%1“ ist in einem anderen Programm geöffnet (%2): Sie kann nicht geändert werden.</translation>
    </message>
    <message>
        <source>Formato di database non riconosciuto: %1.</source>
        <translation>Unbekanntes Datenbankformat: %1.</translation>
    </message>
    <message>
        <source>il file non è un database Jet</source>
        <translation>die Datei ist keine Jet-Datenbank</translation>
    </message>
    <message>
        <source>è un file .accdb di Access 2007 o successivo; salvarlo in formato Access 2000-2003 (.mdb)</source>
        <translation>es ist eine .accdb-Datei von Access 2007 oder neuer; im Format Access 2000-2003 (.mdb) speichern</translation>
    </message>
    <message>
        <source>è di una versione più recente di Access 2003</source>
        <translation>sie ist von einer neueren Version als Access 2003</translation>
    </message>
    <message>
        <source>il file è troncato</source>
        <translation>die Datei ist abgeschnitten</translation>
    </message>
    <message>
        <source>è un file di Access 97 con una tabella codici diversa da quella occidentale (1252)</source>
        <translation>es ist eine Access-97-Datei mit einer anderen Codepage als der westlichen (1252)</translation>
    </message>
    <message>
        <source>la pagina di indice %1 non è leggibile</source>
        <translation>Indexseite %1 ist nicht lesbar</translation>
    </message>
    <message>
        <source>la pagina di indice %1 è troppo piena</source>
        <translation>Indexseite %1 ist zu voll</translation>
    </message>
    <message>
        <source>la pagina di indice %1 non ha un ultimo ramo</source>
        <translation>Indexseite %1 hat keinen letzten Zweig</translation>
    </message>
    <message>
        <source>un indice di &quot;%1&quot; gira in tondo</source>
        <translation>ein Index von „%1“ läuft im Kreis</translation>
    </message>
    <message>
        <source>un indice di &quot;%1&quot; contiene già la riga</source>
        <translation>ein Index von „%1“ enthält die Zeile schon</translation>
    </message>
    <message>
        <source>Le voci di un indice del database sono troppo lunghe per essere divise.</source>
        <translation>Die Einträge eines Index der Datenbank sind zu lang, um geteilt zu werden.</translation>
    </message>
    <message>
        <source>la definizione di una tabella è incompleta</source>
        <translation>eine Tabellendefinition ist unvollständig</translation>
    </message>
    <message>
        <source>Il file &quot;%1&quot; non è un giornale di questo database: è un collegamento o appartiene a chi non può scrivere il database. Il database non viene aperto finché il file resta al suo posto.</source>
        <translation>Die Datei „%1“ ist kein Journal dieser Datenbank: Sie ist eine Verknüpfung oder gehört jemandem, der die Datenbank nicht schreiben kann. Die Datenbank wird nicht geöffnet, solange die Datei an ihrem Platz bleibt.</translation>
    </message>
    <message>
        <source>Troppi file &quot;%1&quot;.</source>
        <translation>Zu viele Dateien „%1“.</translation>
    </message>
    <message>
        <source>Accanto al database c&apos;era un giornale di modifiche interrotte che non gli appartiene. Il database resta com&apos;è; il giornale è stato messo da parte come &quot;%1&quot;.</source>
        <translation>Neben der Datenbank lag ein Journal unterbrochener Änderungen, das nicht zu ihr gehört. Die Datenbank bleibt, wie sie ist; das Journal wurde als „%1“ beiseitegelegt.</translation>
    </message>
    <message>
        <source>lettura</source>
        <translation>Lesen</translation>
    </message>
    <message>
        <source>un indice di &quot;%1&quot; nomina un campo che non c&apos;è</source>
        <translation>ein Index von „%1“ nennt ein Feld, das es nicht gibt</translation>
    </message>
    <message>
        <source>un valore del campo &quot;%1&quot; è troppo corto</source>
        <translation>ein Wert des Feldes „%1“ ist zu kurz</translation>
    </message>
    <message>
        <source>il campo &quot;%1&quot; non ha l&apos;ordinamento generale</source>
        <translation>das Feld „%1“ hat nicht die allgemeine Sortierreihenfolge</translation>
    </message>
    <message>
        <source>il tipo del campo &quot;%1&quot; non è adatto a un indice</source>
        <translation>der Typ des Feldes „%1“ eignet sich nicht für einen Index</translation>
    </message>
    <message>
        <source>non è su alcun campo</source>
        <translation>er umfasst kein Feld</translation>
    </message>
    <message>
        <source>Il testo del campo &quot;%1&quot; contiene il carattere %2, che non può stare nell&apos;indice &quot;%3&quot;.</source>
        <translation>Der Text des Feldes „%1“ enthält das Zeichen %2, das im Index „%3“ nicht stehen kann.</translation>
    </message>
    <message>
        <source>I valori sono troppo lunghi per l&apos;indice &quot;%1&quot;.</source>
        <translation>Die Werte sind zu lang für den Index „%1“.</translation>
    </message>
    <message>
        <source>un campo memo non è leggibile</source>
        <translation>ein Memofeld ist nicht lesbar</translation>
    </message>
    <message>
        <source>Il database non ha posto per i testi lunghi di un campo memo.</source>
        <translation>Die Datenbank hat keinen Platz für die langen Texte eines Memofeldes.</translation>
    </message>
    <message>
        <source>scrittura</source>
        <translation>Schreiben</translation>
    </message>
    <message>
        <source>creazione</source>
        <translation>Erstellen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; non è un file.</source>
        <translation>„%1“ ist keine Datei.</translation>
    </message>
    <message>
        <source>accorciamento</source>
        <translation>Kürzen</translation>
    </message>
    <message>
        <source>prenotazione</source>
        <translation>Reservieren</translation>
    </message>
    <message>
        <source>sincronizzazione</source>
        <translation>Synchronisieren</translation>
    </message>
    <message>
        <source>Il file &quot;%1&quot; può essere letto o scritto da chi non può farlo con &quot;%2&quot;.</source>
        <translation>Die Datei „%1“ kann von Benutzern gelesen oder geschrieben werden, die das mit „%2“ nicht können.</translation>
    </message>
    <message>
        <source>blocco</source>
        <translation>Sperren</translation>
    </message>
    <message>
        <source>cancellazione</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>cambio di nome</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>%1 Accanto è rimasto il giornale delle sue ultime modifiche, &quot;%2&quot;, che viene conservato: rimettere il file al suo posto.</source>
        <translation>%1 Daneben liegt noch das Journal ihrer letzten Änderungen, „%2“, das aufbewahrt wird: die Datei an ihren Platz zurücklegen.</translation>
    </message>
    <message>
        <source>Il file &quot;%1&quot; supera la dimensione massima di un database, 2 GB.</source>
        <translation>Die Datei „%1“ überschreitet die maximale Größe einer Datenbank, 2 GB.</translation>
    </message>
    <message>
        <source>la lunghezza del file non è quella di un database</source>
        <translation>die Länge der Datei ist nicht die einer Datenbank</translation>
    </message>
    <message>
        <source>manca la pagina %1</source>
        <translation>Seite %1 fehlt</translation>
    </message>
    <message>
        <source>la pagina %1 è troncata</source>
        <translation>Seite %1 ist abgeschnitten</translation>
    </message>
    <message>
        <source>Il database &quot;%1&quot; è di Access 97: può essere letto ma non modificato. Per modificarlo convertirlo in formato Access 2000-2003 (.mdb).</source>
        <translation>Die Datenbank „%1“ ist von Access 97: Sie kann gelesen, aber nicht geändert werden. Zum Ändern in das Format Access 2000-2003 (.mdb) umwandeln.</translation>
    </message>
    <message>
        <source>Il database &quot;%1&quot; è di sola lettura.</source>
        <translation>Die Datenbank „%1“ ist schreibgeschützt.</translation>
    </message>
    <message>
        <source>Una transazione è già in corso.</source>
        <translation>Es läuft schon eine Transaktion.</translation>
    </message>
    <message>
        <source>Il database &quot;%1&quot; viene sostituito di continuo da un altro programma.</source>
        <translation>Die Datenbank „%1“ wird von einem anderen Programm ständig ersetzt.</translation>
    </message>
    <message>
        <source>Il database &quot;%1&quot; va ripristinato dopo un&apos;interruzione, ma non può essere scritto.</source>
        <translation>Die Datenbank „%1“ muss nach einer Unterbrechung wiederhergestellt werden, kann aber nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Il database &quot;%1&quot; è stato sostituito o cancellato: la modifica non è stata fatta.</source>
        <translation>Die Datenbank „%1“ wurde ersetzt oder gelöscht: Die Änderung wurde nicht vorgenommen.</translation>
    </message>
    <message>
        <source>la pagina %1 è fra quelle libere di una tabella a cui non appartiene</source>
        <translation>Seite %1 zählt zu den freien einer Tabelle, zu der sie nicht gehört</translation>
    </message>
    <message>
        <source>una riga di &quot;%1&quot; non è leggibile</source>
        <translation>eine Zeile von „%1“ ist nicht lesbar</translation>
    </message>
    <message>
        <source>Il record è troppo grande per la tabella &quot;%1&quot; (%2 byte; al massimo %3).</source>
        <translation>Der Datensatz ist zu groß für die Tabelle „%1“ (%2 Byte; höchstens %3).</translation>
    </message>
    <message>
        <source>la pagina %1 non appartiene alla tabella &quot;%2&quot;</source>
        <translation>Seite %1 gehört nicht zur Tabelle „%2“</translation>
    </message>
    <message>
        <source>la riga %1 della pagina %2 non dice dove è</source>
        <translation>Zeile %1 der Seite %2 sagt nicht, wo sie ist</translation>
    </message>
    <message>
        <source>la riga %1 della pagina %2 si è persa</source>
        <translation>Zeile %1 der Seite %2 ist verloren</translation>
    </message>
    <message>
        <source>una riga di &quot;%1&quot; è sparita</source>
        <translation>eine Zeile von „%1“ ist verschwunden</translation>
    </message>
    <message>
        <source>la pagina %1 è in uso ed è segnata come libera</source>
        <translation>Seite %1 wird benutzt und ist als frei markiert</translation>
    </message>
    <message>
        <source>un indice gira in tondo</source>
        <translation>ein Index läuft im Kreis</translation>
    </message>
    <message>
        <source>La struttura della tabella &quot;%1&quot; è stata cambiata da un altro programma.</source>
        <translation>Der Aufbau der Tabelle „%1“ wurde von einem anderen Programm geändert.</translation>
    </message>
    <message>
        <source>La tabella &quot;%1&quot; non ha una chiave primaria numerica.</source>
        <translation>Die Tabelle „%1“ hat keinen numerischen Primärschlüssel.</translation>
    </message>
    <message>
        <source>nell&apos;indice &quot;%1&quot; manca una riga</source>
        <translation>im Index „%1“ fehlt eine Zeile</translation>
    </message>
    <message>
        <source>Il numero dei valori non è quello dei campi della tabella &quot;%1&quot;.</source>
        <translation>Die Anzahl der Werte ist nicht die der Felder der Tabelle „%1“.</translation>
    </message>
    <message>
        <source>il campo &quot;%1&quot; è un contatore</source>
        <translation>das Feld „%1“ ist ein Zähler</translation>
    </message>
    <message>
        <source>la mappa delle pagine %1/%2 non è leggibile</source>
        <translation>die Seitenkarte %1/%2 ist nicht lesbar</translation>
    </message>
    <message>
        <source>la mappa delle pagine %1/%2 comincia oltre il file</source>
        <translation>die Seitenkarte %1/%2 beginnt hinter dem Dateiende</translation>
    </message>
    <message>
        <source>la pagina %1 non è una mappa</source>
        <translation>Seite %1 ist keine Seitenkarte</translation>
    </message>
    <message>
        <source>Una mappa delle pagine del database non può crescere oltre.</source>
        <translation>Eine Seitenkarte der Datenbank kann nicht weiter wachsen.</translation>
    </message>
    <message>
        <source>Il numero è troppo grande per il campo &quot;%1&quot;.</source>
        <translation>Die Zahl ist zu groß für das Feld „%1“.</translation>
    </message>
    <message>
        <source>Il campo &quot;%1&quot; è troppo piccolo per il testo (al massimo %2 caratteri).</source>
        <translation>Das Feld „%1“ ist zu klein für den Text (höchstens %2 Zeichen).</translation>
    </message>
    <message>
        <source>Il testo del campo &quot;%1&quot; contiene caratteri che il database non può conservare.</source>
        <translation>Der Text des Feldes „%1“ enthält Zeichen, die die Datenbank nicht speichern kann.</translation>
    </message>
    <message>
        <source>Il campo &quot;%1&quot; non può contenere %2 byte.</source>
        <translation>Das Feld „%1“ kann keine %2 Byte enthalten.</translation>
    </message>
    <message>
        <source>contiene un oggetto OLE</source>
        <translation>enthält ein OLE-Objekt</translation>
    </message>
    <message>
        <source>è un testo di lunghezza fissa</source>
        <translation>ist ein Text fester Länge</translation>
    </message>
    <message>
        <source>è di un tipo sconosciuto (%1)</source>
        <translation>ist von unbekanntem Typ (%1)</translation>
    </message>
    <message>
        <source>Il campo &quot;%1&quot; %2: non può essere modificato.</source>
        <translation>Das Feld „%1“ %2: Es kann nicht geändert werden.</translation>
    </message>
    <message>
        <source>l&apos;indice &quot;%1&quot; (%2) non può essere aggiornato, perché %3</source>
        <translation>der Index „%1“ (%2) kann nicht aktualisiert werden, denn %3</translation>
    </message>
    <message>
        <source>le sue voci non corrispondono alle righe della tabella</source>
        <translation>seine Einträge stimmen nicht mit den Zeilen der Tabelle überein</translation>
    </message>
    <message>
        <source>la forma delle sue chiavi decrescenti non è certa</source>
        <translation>die Form seiner absteigenden Schlüssel ist nicht sicher</translation>
    </message>
    <message>
        <source>La tabella &quot;%1&quot; non può essere modificata: %2.</source>
        <translation>Die Tabelle „%1“ kann nicht geändert werden: %2.</translation>
    </message>
    <message>
        <source>è una tabella di sistema</source>
        <translation>sie ist eine Systemtabelle</translation>
    </message>
    <message>
        <source>ha una relazione con un&apos;altra tabella</source>
        <translation>sie hat eine Beziehung zu einer anderen Tabelle</translation>
    </message>
    <message>
        <source>il campo &quot;%1&quot; %2</source>
        <translation>das Feld „%1“ %2</translation>
    </message>
    <message>
        <source>il campo &quot;%1&quot; è un contatore di tipo GUID</source>
        <translation>das Feld „%1“ ist ein Zähler vom Typ GUID</translation>
    </message>
    <message>
        <source>Il campo &quot;%1&quot; deve contenere un valore.</source>
        <translation>Das Feld „%1“ muss einen Wert enthalten.</translation>
    </message>
    <message>
        <source>Il campo &quot;%1&quot; non può contenere un testo vuoto.</source>
        <translation>Das Feld „%1“ kann keinen leeren Text enthalten.</translation>
    </message>
    <message>
        <source>I campi dell&apos;indice &quot;%1&quot; (%2) devono contenere un valore.</source>
        <translation>Die Felder des Index „%1“ (%2) müssen einen Wert enthalten.</translation>
    </message>
    <message>
        <source>Il valore di &quot;%1&quot; esiste già e l&apos;indice &quot;%2&quot; non ammette duplicati.</source>
        <translation>Der Wert von „%1“ existiert schon, und der Index „%2“ erlaubt keine Duplikate.</translation>
    </message>
</context>
</TS>
