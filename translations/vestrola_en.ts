<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="it">
<context>
    <name>Vestrola</name>
    <message>
        <source>Il nome di questo file contiene caratteri sconosciuti, rinominalo:<byte value="xd"/>
%1</source>
        <translation>The name of this file contains unknown characters, rename it:<byte value="xd"/>
%1</translation>
    </message>
    <message>
        <source>La cartella del programma si trova su un disco che non conserva i permessi dei file.<byte value="xd"/>
Chi può leggere il disco può leggere anche i destinatari e le password degli account.</source>
        <translation>The program&apos;s folder is on a disk that does not keep the permissions of files.<byte value="xd"/>
Whoever can read the disk can also read the recipients and the passwords of the accounts.</translation>
    </message>
    <message>
        <source>Scrivere di nuovo la password.</source>
        <translation>Type the password again.</translation>
    </message>
    <message>
        <source>La password non è nota.</source>
        <translation>The password is not known.</translation>
    </message>
    <message>
        <source>La password ha caratteri che il file degli account non può contenere.</source>
        <translation>The password has characters that the accounts file cannot hold.</translation>
    </message>
    <message>
        <source>Resta nel portachiavi.</source>
        <translation>It stays in the keyring.</translation>
    </message>
    <message>
        <source>Senza la spunta la password resta nel file degli account.</source>
        <translation>Without the check mark the password stays in the accounts file.</translation>
    </message>
    <message>
        <source>Overflow</source>
        <translation>Overflow</translation>
    </message>
    <message>
        <source>Indice non compreso nell&apos;intervallo</source>
        <translation>Subscript out of range</translation>
    </message>
    <message>
        <source>Tipo non corrispondente</source>
        <translation>Type mismatch</translation>
    </message>
    <message>
        <source>Impossibile trovare il file</source>
        <translation>File not found</translation>
    </message>
    <message>
        <source>Errore di I/O del dispositivo</source>
        <translation>Device I/O error</translation>
    </message>
    <message>
        <source>Input oltre la fine del file</source>
        <translation>Input past end of file</translation>
    </message>
    <message>
        <source>Errore di accesso al percorso/file</source>
        <translation>Path/file access error</translation>
    </message>
    <message>
        <source>Uso non valido di Null</source>
        <translation>Invalid use of Null</translation>
    </message>
    <message>
        <source>Nessun record corrente</source>
        <translation>No current record</translation>
    </message>
    <message>
        <source>Elemento non trovato nell&apos;insieme</source>
        <translation>Item not found in the collection</translation>
    </message>
    <message>
        <source>È stato scelto Annulla</source>
        <translation>Cancel was selected</translation>
    </message>
    <message>
        <source>Errore del programma</source>
        <translation>Program error</translation>
    </message>
    <message>
        <source>Riga %1: il campo %2 non c&apos;è; %3</source>
        <translation>Line %1: field %2 is missing; %3</translation>
    </message>
    <message numerus="yes">
        <source>inseriti %n destinatari</source>
        <translation>
            <numerusform>%n recipient added</numerusform>
            <numerusform>%n recipients added</numerusform>
        </translation>
    </message>
    <message>
        <source>Manca l&apos;indirizzo</source>
        <translation>The address is missing</translation>
    </message>
    <message>
        <source>Nell&apos;indirizzo manca &quot;@&quot;</source>
        <translation>The address has no &quot;@&quot;</translation>
    </message>
    <message>
        <source>Nell&apos;indirizzo manca il nome prima di &quot;@&quot;</source>
        <translation>The address has no name before &quot;@&quot;</translation>
    </message>
    <message>
        <source>Nell&apos;indirizzo manca il dominio dopo &quot;@&quot;</source>
        <translation>The address has no domain after &quot;@&quot;</translation>
    </message>
    <message>
        <source>L&apos;ultima parte dell&apos;indirizzo ha più di quattro caratteri</source>
        <translation>The last part of the address has more than four characters</translation>
    </message>
    <message>
        <source>L&apos;indirizzo non è valido</source>
        <translation>The address is not valid</translation>
    </message>
    <message>
        <source>Destinatario numero %1: già servito, ma la sua riga non ha più quell&apos;indirizzo. Resta com&apos;è.</source>
        <translation>Recipient number %1: already served, but the row no longer has that address. It stays as it is.</translation>
    </message>
    <message>
        <source>cartelle perdute</source>
        <translation>lost folders</translation>
    </message>
    <message numerus="yes">
        <source>altre %n cartelle</source>
        <translation>
            <numerusform>%n other folder</numerusform>
            <numerusform>%n other folders</numerusform>
        </translation>
    </message>
    <message>
        <source>Il registro di questo invio non c&apos;è più.</source>
        <translation>The record of this run is no longer there.</translation>
    </message>
    <message>
        <source>Il registro di questo invio è troppo grande per essere letto.</source>
        <translation>The record of this run is too large to be read.</translation>
    </message>
    <message>
        <source>Il registro di questo invio non si può leggere. %1</source>
        <translation>The record of this run cannot be read. %1</translation>
    </message>
    <message>
        <source>La cartella &quot;%1&quot; non si può scrivere.</source>
        <translation>The folder &quot;%1&quot; cannot be written to.</translation>
    </message>
    <message>
        <source>Data e ora</source>
        <translation>Date and time</translation>
    </message>
    <message>
        <source>Indirizzo</source>
        <translation>Address</translation>
    </message>
    <message>
        <source>Esito</source>
        <translation>Result</translation>
    </message>
    <message>
        <source>Motivo</source>
        <translation>Reason</translation>
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
        <translation>Server&apos;s reply</translation>
    </message>
    <message>
        <source>Casella o indirizzo inesistente</source>
        <translation>No such mailbox or address</translation>
    </message>
    <message>
        <source>Casella disattivata</source>
        <translation>Mailbox disabled</translation>
    </message>
    <message>
        <source>Casella piena</source>
        <translation>Mailbox full</translation>
    </message>
    <message>
        <source>Regole del server: spam, blocchi o limiti</source>
        <translation>Server rules: spam, blocks or limits</translation>
    </message>
    <message>
        <source>Mittente non accettato</source>
        <translation>Sender not accepted</translation>
    </message>
    <message>
        <source>Accesso all&apos;account non riuscito</source>
        <translation>Login to the account failed</translation>
    </message>
    <message>
        <source>Tempo scaduto senza risposta</source>
        <translation>Timed out without a reply</translation>
    </message>
    <message>
        <source>Nessun server di posta per il dominio</source>
        <translation>No mail server for the domain</translation>
    </message>
    <message>
        <source>Server non raggiunto</source>
        <translation>Server not reached</translation>
    </message>
    <message>
        <source>Connessione caduta o risposta non valida</source>
        <translation>Connection lost or invalid reply</translation>
    </message>
    <message>
        <source>Messaggio troppo grande</source>
        <translation>Message too large</translation>
    </message>
    <message>
        <source>Rifiuto temporaneo: riprovare più tardi</source>
        <translation>Refused for now: try again later</translation>
    </message>
    <message>
        <source>Invio fermato</source>
        <translation>Sending stopped</translation>
    </message>
    <message>
        <source>Non spedito dal programma</source>
        <translation>Not sent by the program</translation>
    </message>
    <message>
        <source>Altro rifiuto del server</source>
        <translation>Other refusal by the server</translation>
    </message>
    <message>
        <source>Consegnato</source>
        <translation>Delivered</translation>
    </message>
    <message>
        <source>Rifiutato</source>
        <translation>Refused</translation>
    </message>
    <message>
        <source>Senza risposta</source>
        <translation>No reply</translation>
    </message>
    <message>
        <source>Non spedito</source>
        <translation>Not sent</translation>
    </message>
    <message>
        <source>Ricerca del server di posta non riuscita per un problema temporaneo: %1.</source>
        <translation>The look-up of the mail server failed for a temporary reason: %1.</translation>
    </message>
    <message>
        <source>La risposta del DNS sul dominio del destinatario non si può usare: %1.</source>
        <translation>The DNS reply about the recipient&apos;s domain cannot be used: %1.</translation>
    </message>
    <message>
        <source>Il dominio del destinatario non ha un server di posta: %1.</source>
        <translation>The recipient&apos;s domain has no mail server: %1.</translation>
    </message>
    <message>
        <source>Su questo computer non è configurato un server DNS.</source>
        <translation>No DNS server is set up on this computer.</translation>
    </message>
    <message>
        <source>Il dominio del destinatario non è valido.</source>
        <translation>The recipient&apos;s domain is not valid.</translation>
    </message>
    <message>
        <source>il server DNS non si può interrogare</source>
        <translation>the DNS server cannot be asked</translation>
    </message>
    <message>
        <source>il server DNS non ha risposto in tempo</source>
        <translation>the DNS server did not reply in time</translation>
    </message>
    <message>
        <source>il server DNS segnala un errore (SERVFAIL)</source>
        <translation>the DNS server reports an error (SERVFAIL)</translation>
    </message>
    <message>
        <source>il server DNS rifiuta la domanda (REFUSED)</source>
        <translation>the DNS server refuses the query (REFUSED)</translation>
    </message>
    <message>
        <source>è troncata</source>
        <translation>it is truncated</translation>
    </message>
    <message>
        <source>comincia con un alias (CNAME)</source>
        <translation>it begins with an alias (CNAME)</translation>
    </message>
    <message>
        <source>i suoi nomi non sono compressi</source>
        <translation>its names are not compressed</translation>
    </message>
    <message>
        <source>ha un&apos;altra forma</source>
        <translation>it has another form</translation>
    </message>
    <message>
        <source>Il dominio del destinatario non accetta posta (null MX).</source>
        <translation>The recipient&apos;s domain takes no mail (null MX).</translation>
    </message>
    <message>
        <source>non esiste (NXDOMAIN)</source>
        <translation>it does not exist (NXDOMAIN)</translation>
    </message>
    <message>
        <source>il DNS non ne indica</source>
        <translation>DNS names none</translation>
    </message>
    <message>
        <source>Il file pathDBase.utf8, con il percorso del database, è danneggiato.<byte value="xd"/>
È stato messo da parte con il nome pathDBase.utf8.guasto.</source>
        <translation>The file pathDBase.utf8, with the path of the database, is damaged.<byte value="xd"/>
It was set aside under the name pathDBase.utf8.guasto.</translation>
    </message>
    <message>
        <source>La tabella dei destinatari non ha la colonna &quot;id_grp&quot;.</source>
        <translation>The table of recipients has no column &quot;id_grp&quot;.</translation>
    </message>
    <message>
        <source>La cartella che la contiene non c&apos;è</source>
        <translation>The folder that contains it is missing</translation>
    </message>
    <message>
        <source>Sta dentro &quot;%1&quot;, perduta anch&apos;essa</source>
        <translation>Inside &quot;%1&quot;, lost as well</translation>
    </message>
    <message>
        <source>(cartella %1)</source>
        <translation>(folder %1)</translation>
    </message>
    <message>
        <source>La cartella dei destinatari non c&apos;è</source>
        <translation>The recipients&apos; folder is missing</translation>
    </message>
    <message>
        <source>(nessuna cartella)</source>
        <translation>(no folder)</translation>
    </message>
    <message>
        <source>I destinatari non hanno una cartella</source>
        <translation>The recipients have no folder</translation>
    </message>
    <message>
        <source>Indirizzo dell&apos;account</source>
        <translation>Account address</translation>
    </message>
    <message>
        <source>L&apos;indirizzo email dell&apos;account non è valido: correggerlo nella finestra degli account.</source>
        <translation>The account&apos;s email address is not valid: correct it in the accounts window.</translation>
    </message>
    <message>
        <source>Posta in arrivo (MX)</source>
        <translation>Incoming mail (MX)</translation>
    </message>
    <message>
        <source>Indirizzo del dominio (A)</source>
        <translation>Address of the domain (A)</translation>
    </message>
    <message>
        <source>Nome inverso di questo computer</source>
        <translation>Reverse name of this computer</translation>
    </message>
    <message>
        <source>Firma DKIM</source>
        <translation>DKIM signature</translation>
    </message>
    <message>
        <source>Il DNS è troppo lento o porta troppo lontano: riprovare più tardi.</source>
        <translation>DNS is too slow or leads too far: try again later.</translation>
    </message>
    <message>
        <source>Il dominio non esiste nel DNS: correggere l&apos;indirizzo dell&apos;account o registrare il dominio.</source>
        <translation>The domain does not exist in DNS: correct the account&apos;s address or register the domain.</translation>
    </message>
    <message>
        <source>Il dominio non ha un record MX: pubblicarne uno, perché risposte e avvisi di mancata consegna arrivino.</source>
        <translation>The domain has no MX record: publish one, so that replies and failure notices arrive.</translation>
    </message>
    <message>
        <source>nessun indirizzo</source>
        <translation>no address</translation>
    </message>
    <message>
        <source>Il dominio dichiara di non ricevere posta (MX nullo): molti server rifiutano i messaggi di un mittente a cui non si può rispondere.</source>
        <translation>The domain declares that it takes no mail (null MX): many servers refuse messages of a sender who cannot be answered.</translation>
    </message>
    <message>
        <source>Nessun server del record MX ha un indirizzo: correggere il record.</source>
        <translation>No server of the MX record has an address: correct the record.</translation>
    </message>
    <message>
        <source>Il dominio riceve posta.</source>
        <translation>The domain receives mail.</translation>
    </message>
    <message>
        <source>Il dominio ha un indirizzo.</source>
        <translation>The domain has an address.</translation>
    </message>
    <message>
        <source>Il dominio non ha un indirizzo suo, e non gli serve: ha un record MX.</source>
        <translation>The domain has no address of its own and needs none: it has an MX record.</translation>
    </message>
    <message>
        <source>Il dominio non ha né un record MX né un indirizzo: molti server rifiutano i suoi messaggi; pubblicare un record MX.</source>
        <translation>The domain has neither an MX record nor an address: many servers refuse its messages; publish an MX record.</translation>
    </message>
    <message>
        <source>L&apos;indirizzo pubblico di questo computer non si può conoscere da qui: verificare con il fornitore di rete che abbia un nome inverso.</source>
        <translation>The public address of this computer cannot be known from here: ask the network provider whether it has a reverse name.</translation>
    </message>
    <message>
        <source>nessun nome</source>
        <translation>no name</translation>
    </message>
    <message>
        <source>, che non riporta a questo indirizzo</source>
        <translation>, which does not lead back to this address</translation>
    </message>
    <message>
        <source>Nome e indirizzo si confermano.</source>
        <translation>Name and address confirm each other.</translation>
    </message>
    <message>
        <source>Chiedere al fornitore di rete un nome inverso che riporti allo stesso indirizzo: senza, molti server rifiutano l&apos;invio diretto.</source>
        <translation>Ask the network provider for a reverse name that leads back to the same address: without it many servers refuse direct sending.</translation>
    </message>
    <message>
        <source>Il record dichiara la chiave ritirata (p= vuoto): pubblicare quella nuova.</source>
        <translation>The record declares the key withdrawn (empty p=): publish the new one.</translation>
    </message>
    <message>
        <source>Il record pubblicato è di un&apos;altra chiave, e le firme non valgono: pubblicare il record della chiave di questo programma.</source>
        <translation>The published record is of another key, and the signatures are not valid: publish the record of this program&apos;s key.</translation>
    </message>
    <message>
        <source>Il record non ammette SHA-256: togliere il campo h=.</source>
        <translation>The record does not allow SHA-256: remove the tag h=.</translation>
    </message>
    <message>
        <source>Il record non vale per la posta: togliere il campo s=.</source>
        <translation>The record is not valid for mail: remove the tag s=.</translation>
    </message>
    <message>
        <source>stretto</source>
        <translation>strict</translation>
    </message>
    <message>
        <source>rilassato</source>
        <translation>relaxed</translation>
    </message>
    <message>
        <source>allineato</source>
        <translation>aligned</translation>
    </message>
    <message>
        <source>non allineato</source>
        <translation>not aligned</translation>
    </message>
    <message>
        <source>Record di %1, p=%2 per questo dominio, %3 % dei messaggi</source>
        <translation>Record of %1, p=%2 for this domain, %3 % of the messages</translation>
    </message>
    <message>
        <source>SPF: %1 (%2)</source>
        <translation>SPF: %1 (%2)</translation>
    </message>
    <message>
        <source>non si può sapere</source>
        <translation>cannot be known</translation>
    </message>
    <message>
        <source>passa</source>
        <translation>passes</translation>
    </message>
    <message>
        <source>non passa</source>
        <translation>does not pass</translation>
    </message>
    <message>
        <source>DKIM: %1 (%2)</source>
        <translation>DKIM: %1 (%2)</translation>
    </message>
    <message>
        <source>Nessun rapporto richiesto</source>
        <translation>No reports asked for</translation>
    </message>
    <message>
        <source>Rapporti a %1</source>
        <translation>Reports to %1</translation>
    </message>
    <message>
        <source>Con p=%1 i messaggi sono %2, perché non passano né SPF né DKIM: correggere prima quelle righe.</source>
        <translation>With p=%1 the messages are %2, because neither SPF nor DKIM passes: correct those lines first.</translation>
    </message>
    <message>
        <source>rifiutati</source>
        <translation>refused</translation>
    </message>
    <message>
        <source>messi fra la posta indesiderata</source>
        <translation>put into the spam folder</translation>
    </message>
    <message>
        <source>Se SPF passa non si può sapere da qui: firmare con DKIM, perché DMARC passi in ogni caso.</source>
        <translation>Whether SPF passes cannot be known from here: sign with DKIM, so that DMARC passes in any case.</translation>
    </message>
    <message>
        <source>Il record osserva soltanto, e per ora non passano né SPF né DKIM: correggere quelle righe.</source>
        <translation>The record only observes, and for now neither SPF nor DKIM passes: correct those lines.</translation>
    </message>
    <message>
        <source>Il record osserva soltanto (p=none): quando i rapporti sono buoni, passare a p=quarantine.</source>
        <translation>The record only observes (p=none): when the reports are good, go on to p=quarantine.</translation>
    </message>
    <message>
        <source>Il record protegge il dominio, e i messaggi lo rispettano.</source>
        <translation>The record protects the domain, and the messages comply with it.</translation>
    </message>
    <message>
        <source>I messaggi partono senza firma: creare una chiave DKIM e pubblicarne il record.</source>
        <translation>The messages leave without a signature: create a DKIM key and publish its record.</translation>
    </message>
    <message>
        <source>Il programma non firma i messaggi: se non lo fa il server del fornitore, creare una chiave DKIM e pubblicarne il record.</source>
        <translation>The program does not sign the messages: unless the provider&apos;s server does, create a DKIM key and publish its record.</translation>
    </message>
    <message>
        <source>Il record della chiave manca: pubblicarlo con il nome %1.</source>
        <translation>The record of the key is missing: publish it under the name %1.</translation>
    </message>
    <message>
        <source>Allo stesso nome ci sono più record: lasciarne uno solo.</source>
        <translation>There are several records under the same name: leave only one.</translation>
    </message>
    <message>
        <source>Il record non è una chiave DKIM valida: copiarlo di nuovo, intero.</source>
        <translation>The record is not a valid DKIM key: copy it again, in full.</translation>
    </message>
    <message>
        <source>La chiave è pubblicata in prova (t=y): togliere il campo quando tutto funziona.</source>
        <translation>The key is published as a trial (t=y): remove the tag when everything works.</translation>
    </message>
    <message>
        <source>La chiave pubblicata è quella con cui il programma firma.</source>
        <translation>The published key is the one with which the program signs.</translation>
    </message>
    <message>
        <source>Pubblicare un record DMARC con il nome %1, per esempio &quot;v=DMARC1; p=none; rua=mailto:%2&quot;.</source>
        <translation>Publish a DMARC record under the name %1, for example &quot;v=DMARC1; p=none; rua=mailto:%2&quot;.</translation>
    </message>
    <message>
        <source>%1 ha più di un record DMARC e nessuno vale: lasciarne uno solo.</source>
        <translation>%1 has more than one DMARC record and none is valid: leave only one.</translation>
    </message>
    <message>
        <source>Il record DMARC di %1 non vale: manca il campo p= con none, quarantine o reject.</source>
        <translation>The DMARC record of %1 is not valid: the tag p= with none, quarantine or reject is missing.</translation>
    </message>
    <message>
        <source>autorizzato</source>
        <translation>authorized</translation>
    </message>
    <message>
        <source>vietato</source>
        <translation>forbidden</translation>
    </message>
    <message>
        <source>non autorizzato</source>
        <translation>not authorized</translation>
    </message>
    <message>
        <source>né autorizzato né vietato</source>
        <translation>neither authorized nor forbidden</translation>
    </message>
    <message>
        <source> da &quot;%1&quot; di %2</source>
        <translation> by &quot;%1&quot; of %2</translation>
    </message>
    <message>
        <source>, %1 ricerche su 10</source>
        <translation>, %1 look-ups of 10</translation>
    </message>
    <message>
        <source>; il dominio dice: %1</source>
        <translation>; the domain says: %1</translation>
    </message>
    <message>
        <source>Pubblicare un record SPF che nomini l&apos;indirizzo di questo computer: senza, molti server non si fidano dei messaggi.</source>
        <translation>Publish an SPF record that names the address of this computer: without it many servers do not trust the messages.</translation>
    </message>
    <message>
        <source>Pubblicare un record SPF con la riga che indica il fornitore del server: senza, molti server non si fidano dei messaggi.</source>
        <translation>Publish an SPF record with the line that the server&apos;s provider states: without it many servers do not trust the messages.</translation>
    </message>
    <message>
        <source>%1 ha più di un record SPF e nessuno vale: unirli in uno solo.</source>
        <translation>%1 has more than one SPF record and none is valid: join them into one.</translation>
    </message>
    <message>
        <source>Il record SPF di %1 è troppo lungo: accorciarlo.</source>
        <translation>The SPF record of %1 is too long: shorten it.</translation>
    </message>
    <message>
        <source>Il record SPF di %1 non vale per un errore in &quot;%2&quot;: correggerlo.</source>
        <translation>The SPF record of %1 is not valid because of an error in &quot;%2&quot;: correct it.</translation>
    </message>
    <message>
        <source>Il record SPF richiede più di 10 ricerche nel DNS e non vale: togliere meccanismi, per esempio %1.</source>
        <translation>The SPF record needs more than 10 DNS look-ups and is not valid: remove mechanisms, for example %1.</translation>
    </message>
    <message>
        <source>Il record SPF di %1 nomina più di 2 domini senza record e non vale: togliere quelli che non esistono più, per esempio %2.</source>
        <translation>The SPF record of %1 names more than 2 domains without a record and is not valid: remove those that no longer exist, for example %2.</translation>
    </message>
    <message>
        <source>Nel record SPF di %1 &quot;%2&quot; porta a più di 10 server e non vale: indicare gli indirizzi con ip4 o ip6.</source>
        <translation>In the SPF record of %1, &quot;%2&quot; leads to more than 10 servers and is not valid: give the addresses with ip4 or ip6.</translation>
    </message>
    <message>
        <source>Nel record SPF di %1 &quot;%2&quot; porta a un dominio senza record SPF, e tutto il record non vale: toglierlo o correggerlo.</source>
        <translation>In the SPF record of %1, &quot;%2&quot; leads to a domain without an SPF record, and the whole record is not valid: remove or correct it.</translation>
    </message>
    <message>
        <source>Il record c&apos;è e si legge, ma l&apos;indirizzo pubblico di questo computer non si può conoscere da qui: verificare che il record lo nomini.</source>
        <translation>The record is there and can be read, but the public address of this computer cannot be known from here: make sure that the record names it.</translation>
    </message>
    <message>
        <source>Il record c&apos;è e si legge, ma il server non ha un indirizzo pubblico noto: chiedere al fornitore se è compreso nel record.</source>
        <translation>The record is there and can be read, but no public address of the server is known: ask the provider whether the record covers it.</translation>
    </message>
    <message>
        <source>Il record autorizza l&apos;indirizzo di questo computer.</source>
        <translation>The record authorizes the address of this computer.</translation>
    </message>
    <message>
        <source>Il record autorizza il server, per gli indirizzi che si conoscono.</source>
        <translation>The record authorizes the server, as far as its addresses are known.</translation>
    </message>
    <message>
        <source>Il record non autorizza l&apos;indirizzo di questo computer: aggiungerlo con ip4 o ip6.</source>
        <translation>The record does not authorize the address of this computer: add it with ip4 or ip6.</translation>
    </message>
    <message>
        <source>Il record autorizza solo alcuni indirizzi del server: aggiungere gli altri, o verificare con il fornitore da quali spedisce.</source>
        <translation>The record authorizes only some addresses of the server: add the others, or ask the provider from which ones it sends.</translation>
    </message>
    <message>
        <source>Il record non autorizza gli indirizzi noti del server: se il fornitore non spedisce da altri, aggiungere al record la riga che lui indica.</source>
        <translation>The record does not authorize the known addresses of the server: unless the provider sends from others, add the line that it states.</translation>
    </message>
    <message>
        <source>La tabella dei destinatari non ha tutte le sue colonne.</source>
        <translation>The table of recipients does not have all its columns.</translation>
    </message>
    <message>
        <source>Il messaggio non si può aprire: </source>
        <translation>The message cannot be opened: </translation>
    </message>
    <message>
        <source>Il file non contiene un messaggio intero: </source>
        <translation>The file does not contain a whole message: </translation>
    </message>
    <message>
        <source>Tempo scaduto: il server non risponde.</source>
        <translation>Timed out: the server does not reply.</translation>
    </message>
    <message>
        <source>Manca il nome del server.</source>
        <translation>The server name is missing.</translation>
    </message>
    <message>
        <source>Il nome del server non è valido.</source>
        <translation>The server name is not valid.</translation>
    </message>
    <message>
        <source>La porta del server non è valida.</source>
        <translation>The server port is not valid.</translation>
    </message>
    <message>
        <source>Il portachiavi non ha dato la password di questo account.</source>
        <translation>The keyring did not give the password of this account.</translation>
    </message>
    <message>
        <source>In ordine</source>
        <translation>In order</translation>
    </message>
    <message>
        <source>Attenzione</source>
        <translation>Warning</translation>
    </message>
    <message>
        <source>Da correggere</source>
        <translation>To be corrected</translation>
    </message>
    <message>
        <source>In corso…</source>
        <translation>Under way…</translation>
    </message>
    <message>
        <source>Server raggiunto</source>
        <translation>Server reached</translation>
    </message>
    <message>
        <source>Certificato</source>
        <translation>Certificate</translation>
    </message>
    <message>
        <source>Accesso</source>
        <translation>Login</translation>
    </message>
    <message>
        <source>Dimensione massima</source>
        <translation>Largest size</translation>
    </message>
    <message>
        <source>Non si è potuto provare: correggere prima le righe sopra.</source>
        <translation>This could not be tried: correct the lines above first.</translation>
    </message>
    <message>
        <source>Il server risponde.</source>
        <translation>The server replies.</translation>
    </message>
    <message>
        <source>Verificare nome e porta del server nell&apos;account.</source>
        <translation>Check the server&apos;s name and port in the account.</translation>
    </message>
    <message>
        <source>La connessione è protetta.</source>
        <translation>The connection is secure.</translation>
    </message>
    <message>
        <source>Il server non offre una connessione protetta: usare la porta 587 o 465, o un altro server.</source>
        <translation>The server offers no secure connection: use port 587 or 465, or another server.</translation>
    </message>
    <message>
        <source>d MMMM yyyy</source>
        <comment>form of a date</comment>
        <translation>d MMMM yyyy</translation>
    </message>
    <message>
        <source>Per: %1</source>
        <translation>For: %1</translation>
    </message>
    <message>
        <source>Emesso da: %1</source>
        <translation>Issued by: %1</translation>
    </message>
    <message>
        <source>Vale fino al %1</source>
        <translation>Valid until %1</translation>
    </message>
    <message>
        <source>Il certificato è scaduto il %1: chi gestisce il server deve rinnovarlo.</source>
        <translation>The certificate expired on %1: whoever runs the server must renew it.</translation>
    </message>
    <message>
        <source>Il certificato non è accettato: verificare il nome del server nell&apos;account, o chiedere a chi lo gestisce.</source>
        <translation>The certificate is not accepted: check the server&apos;s name in the account, or ask whoever runs it.</translation>
    </message>
    <message>
        <source>Il certificato scade il %1: chi gestisce il server deve rinnovarlo in tempo.</source>
        <translation>The certificate expires on %1: whoever runs the server must renew it in time.</translation>
    </message>
    <message>
        <source>Il certificato è valido fino al %1.</source>
        <translation>The certificate is valid until %1.</translation>
    </message>
    <message>
        <source>L&apos;account non chiede l&apos;accesso.</source>
        <translation>The account asks for no login.</translation>
    </message>
    <message>
        <source>Il server accetta utente e password.</source>
        <translation>The server accepts user name and password.</translation>
    </message>
    <message>
        <source>Verificare utente e password nell&apos;account.</source>
        <translation>Check user name and password in the account.</translation>
    </message>
    <message>
        <source>Il server non dichiara un limite.</source>
        <translation>The server states no limit.</translation>
    </message>
    <message>
        <source>Il server accetta messaggi fino a %1: tenere piccoli gli allegati.</source>
        <translation>The server accepts messages of up to %1: keep the attachments small.</translation>
    </message>
    <message>
        <source>Il server accetta messaggi fino a %1.</source>
        <translation>The server accepts messages of up to %1.</translation>
    </message>
    <message>
        <source>Grave</source>
        <translation>Serious</translation>
    </message>
    <message>
        <source>Consiglio</source>
        <translation>Advice</translation>
    </message>
    <message>
        <source>%1 non viene sostituito: si scrive %2.</source>
        <translation>%1 is not replaced: write %2.</translation>
    </message>
    <message>
        <source>%1 non viene sostituito: nessuna colonna ha questo nome.</source>
        <translation>%1 is not replaced: no column has this name.</translation>
    </message>
    <message>
        <source>%1 non viene sostituito nella forma HTML: è spezzato da un cambio di formato. Riscriverlo tutto di seguito.</source>
        <translation>%1 is not replaced in the HTML form: a change of format splits it. Write it again in one go.</translation>
    </message>
    <message>
        <source>L&apos;allegato %1 non c&apos;è: il messaggio parte senza.</source>
        <translation>The attachment %1 is missing: the message leaves without it.</translation>
    </message>
    <message>
        <source>L&apos;oggetto è vuoto.</source>
        <translation>The subject is empty.</translation>
    </message>
    <message>
        <source>Manca la forma di solo testo: il messaggio non contiene testo, e chi non vede le immagini non legge niente.</source>
        <translation>The plain-text form is missing: the message contains no text, and whoever does not see images reads nothing.</translation>
    </message>
    <message>
        <source>Manca un collegamento di disiscrizione: chi non vuole più messaggi li segnala come indesiderati. Si crea nell&apos;editor con il comando &quot;Collegamento&quot;.</source>
        <translation>An unsubscribe link is missing: whoever wants no more messages reports them as spam. The editor makes one with the command &quot;Link&quot;.</translation>
    </message>
    <message>
        <source>%1 è vuoto per %2 di %3 destinatari selezionati</source>
        <translation>%1 is empty for %2 of %3 selected recipients</translation>
    </message>
    <message>
        <source>; per %1 di loro si legge %2 al posto del valore.</source>
        <translation>; for %1 of them %2 is read in place of the value.</translation>
    </message>
    <message>
        <source>I caratteri &lt;, &amp; o &quot; di %1 cambiano il messaggio per %2 di %3 destinatari selezionati.</source>
        <translation>The characters &lt;, &amp; or &quot; of %1 change the message for %2 of %3 selected recipients.</translation>
    </message>
    <message>
        <source>Il corpo è di %1: oltre 100 kB i grandi gestori di posta lo tagliano.</source>
        <translation>The body has %1: large mail providers cut it off beyond 100 kB.</translation>
    </message>
    <message>
        <source>(senza indirizzo)</source>
        <translation>(no address)</translation>
    </message>
    <message numerus="yes">
        <source>%Ln immagini non ci sono</source>
        <translation>
            <numerusform>An image is missing</numerusform>
            <numerusform>%Ln images are missing</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file non possono partire come immagini del messaggio</source>
        <translation>
            <numerusform>A file cannot leave as an image of the message</numerusform>
            <numerusform>%Ln files cannot leave as images of the message</numerusform>
        </translation>
    </message>
    <message>
        <source>(non è un&apos;immagine, o insieme superano 10 MB)</source>
        <translation>(no image, or more than 10 MB together)</translation>
    </message>
    <message numerus="yes">
        <source>%Ln collegamenti non portano da nessuna parte</source>
        <translation>
            <numerusform>A link leads nowhere</numerusform>
            <numerusform>%Ln links lead nowhere</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln immagini restano sul web</source>
        <translation>
            <numerusform>An image stays on the web</numerusform>
            <numerusform>%Ln images stay on the web</numerusform>
        </translation>
    </message>
    <message>
        <source>Molti programmi di posta non le mostrano finché il destinatario non vuole.</source>
        <translation>Many mail programs do not show them until the recipient wants it.</translation>
    </message>
    <message>
        <source>it</source>
        <comment>the ISO 639 code of this language</comment>
        <translation>en</translation>
    </message>
    <message>
        <source>In attesa del database, usato da un altro programma… Esc per rinunciare</source>
        <translation>Waiting for the database, used by another program… Esc to give up</translation>
    </message>
    <message>
        <source>Ordine decrescente</source>
        <translation>Descending order</translation>
    </message>
    <message>
        <source>Ordine crescente</source>
        <translation>Ascending order</translation>
    </message>
    <message>
        <source>Il file &quot;%1&quot; non contiene una disposizione valida delle barre.</source>
        <translation>The file &quot;%1&quot; does not contain a valid layout of the bars.</translation>
    </message>
    <message>
        <source>Impossibile scrivere il file &quot;%1&quot;.</source>
        <translation>The file &quot;%1&quot; cannot be written.</translation>
    </message>
    <message>
        <source>Impossibile leggere il file &quot;%1&quot;.</source>
        <translation>The file &quot;%1&quot; cannot be read.</translation>
    </message>
    <message>
        <source>Proprietà elemento</source>
        <translation>Element properties</translation>
    </message>
    <message>
        <source>Attributo</source>
        <translation>Attribute</translation>
    </message>
    <message>
        <source>Valore</source>
        <translation>Value</translation>
    </message>
    <message>
        <source>Attributi</source>
        <translation>Attributes</translation>
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
        <translation>&amp;Cancel</translation>
    </message>
    <message>
        <source>Trova</source>
        <translation>Find</translation>
    </message>
    <message>
        <source>Solo sele&amp;zionati</source>
        <translation>Selected onl&amp;y</translation>
    </message>
    <message>
        <source>T&amp;rova:</source>
        <translation>F&amp;ind:</translation>
    </message>
    <message>
        <source>Dove cercare</source>
        <translation>Where to search</translation>
    </message>
    <message>
        <source>Precedente</source>
        <translation>Previous</translation>
    </message>
    <message>
        <source>Trova precedente (Maiusc+Invio)</source>
        <translation>Find previous (Shift+Enter)</translation>
    </message>
    <message>
        <source>Successivo</source>
        <translation>Next</translation>
    </message>
    <message>
        <source>Trova successivo (Invio)</source>
        <translation>Find next (Enter)</translation>
    </message>
    <message>
        <source>Chiudi</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Chiudi la barra (Esc)</source>
        <translation>Close the bar (Esc)</translation>
    </message>
    <message>
        <source>&amp;Maiuscole e minuscole</source>
        <translation>&amp;Match case</translation>
    </message>
    <message>
        <source>&amp;Testo:</source>
        <translation>&amp;Text:</translation>
    </message>
    <message>
        <source>Trova &amp;successivo</source>
        <translation>Find &amp;next</translation>
    </message>
    <message>
        <source>Trova &amp;precedente</source>
        <translation>Find &amp;previous</translation>
    </message>
    <message>
        <source>&amp;Chiudi</source>
        <translation>C&amp;lose</translation>
    </message>
    <message>
        <source>Testo non trovato.</source>
        <translation>Text not found.</translation>
    </message>
    <message>
        <source>Elemento &quot;%1&quot; non trovato.</source>
        <translation>Element &quot;%1&quot; not found.</translation>
    </message>
    <message>
        <source>L&apos;elemento &quot;%1&quot; esiste già.</source>
        <translation>The element &quot;%1&quot; already exists.</translation>
    </message>
    <message>
        <source>Un elemento non può essere spostato dentro sé stesso o i propri elementi.</source>
        <translation>An element cannot be moved into itself or its own elements.</translation>
    </message>
    <message>
        <source>pixel o %</source>
        <translation>pixels or %</translation>
    </message>
    <message>
        <source>Nessuno</source>
        <translation>None</translation>
    </message>
    <message>
        <source>A sinistra</source>
        <translation>Left</translation>
    </message>
    <message>
        <source>A destra</source>
        <translation>Right</translation>
    </message>
    <message>
        <source>In alto</source>
        <translation>Top</translation>
    </message>
    <message>
        <source>Al centro</source>
        <translation>Middle</translation>
    </message>
    <message>
        <source>In basso</source>
        <translation>Bottom</translation>
    </message>
    <message>
        <source>Immagine</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>S&amp;foglia...</source>
        <translation>&amp;Browse...</translation>
    </message>
    <message>
        <source>&amp;File o indirizzo:</source>
        <translation>&amp;File or address:</translation>
    </message>
    <message>
        <source>File o indirizzo</source>
        <translation>File or address</translation>
    </message>
    <message>
        <source>&amp;Testo alternativo:</source>
        <translation>Alternative &amp;text:</translation>
    </message>
    <message>
        <source>&amp;Larghezza:</source>
        <translation>&amp;Width:</translation>
    </message>
    <message>
        <source>A&amp;ltezza:</source>
        <translation>&amp;Height:</translation>
    </message>
    <message>
        <source>Alli&amp;neamento:</source>
        <translation>Ali&amp;gnment:</translation>
    </message>
    <message>
        <source>Inserisci immagine</source>
        <translation>Insert image</translation>
    </message>
    <message>
        <source>Immagini|*.png;*.jpg;*.jpeg;*.gif;*.bmp;*.webp|Tutti i file|*</source>
        <translation>Images|*.png;*.jpg;*.jpeg;*.gif;*.bmp;*.webp|All files|*</translation>
    </message>
    <message>
        <source>Indirizzo web</source>
        <translation>Web address</translation>
    </message>
    <message>
        <source>Posta elettronica</source>
        <translation>Email</translation>
    </message>
    <message>
        <source>Collegamento di &amp;disiscrizione</source>
        <translation>&amp;Unsubscribe link</translation>
    </message>
    <message>
        <source>Collegamento</source>
        <translation>Link</translation>
    </message>
    <message>
        <source>I programmi di posta lo offrono al destinatario per disiscriversi con un clic</source>
        <translation>Mail programs offer it to the recipient to unsubscribe with one click</translation>
    </message>
    <message>
        <source>Inserisci nell&apos;indirizzo...</source>
        <translation>Insert into the address...</translation>
    </message>
    <message>
        <source>&amp;Tipo:</source>
        <translation>T&amp;ype:</translation>
    </message>
    <message>
        <source>&amp;Indirizzo:</source>
        <translation>&amp;Address:</translation>
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
        <translation>&amp;Remove</translation>
    </message>
    <message>
        <source>&amp;Riavvia</source>
        <translation>&amp;Restart</translation>
    </message>
    <message>
        <source>Ctrl+Tab inserisce una tabulazione</source>
        <translation>Ctrl+Tab inserts a tab</translation>
    </message>
    <message>
        <source>Contiene una tabulazione</source>
        <translation>Contains a tab</translation>
    </message>
    <message>
        <source>Viste</source>
        <translation>Views</translation>
    </message>
    <message>
        <source>Gli account non sono stati salvati:<byte value="xd"/>
il file Account.imp appartiene a un altro utente, che potrebbe leggere le password.</source>
        <translation>The accounts were not saved:<byte value="xd"/>
the file Account.imp belongs to another user, who could read the passwords.</translation>
    </message>
    <message>
        <source>Il file degli account non può contenere questi caratteri:</source>
        <translation>The accounts file cannot hold these characters:</translation>
    </message>
    <message>
        <source>In attesa del portachiavi… Esc per rinunciare</source>
        <translation>Waiting for the keyring… Esc to give up</translation>
    </message>
    <message>
        <source>Conserva la password nel portachiavi del desktop.</source>
        <translation>Keep the password in the desktop&apos;s keyring.</translation>
    </message>
    <message>
        <source>In attesa del browser: annulla l&apos;accesso</source>
        <translation>Waiting for the browser: cancel the login</translation>
    </message>
    <message>
        <source>Accedi con il browser...</source>
        <translation>Log in with the browser...</translation>
    </message>
    <message>
        <source>Per accedere con il browser scrivere prima lo username, di solito l&apos;indirizzo email.</source>
        <translation>To log in with the browser first enter the user name, usually the email address.</translation>
    </message>
    <message>
        <source>Accesso riuscito. Salvare ora l&apos;account con &quot;Nuovo Account&quot; o &quot;Modifica Account&quot;.</source>
        <translation>Login successful. Now save the account with &quot;New account&quot; or &quot;Modify account&quot;.</translation>
    </message>
    <message>
        <source>Nessun account: compilare e premere Nuovo Account</source>
        <translation>No account: fill in and press New account</translation>
    </message>
    <message>
        <source>Allegato</source>
        <translation>Attachment</translation>
    </message>
    <message>
        <source>Cartella nascosta o fuori da quella personale</source>
        <translation>Hidden folder, or outside the personal one</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Dimensione</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>Tipo</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Nota</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>Operazione: </source>
        <translation>Operation: </translation>
    </message>
    <message>
        <source>Finestra: </source>
        <translation>Window: </translation>
    </message>
    <message>
        <source>File: </source>
        <translation>File: </translation>
    </message>
    <message>
        <source>Il programma viene chiuso</source>
        <translation>The program is closed</translation>
    </message>
    <message>
        <source>&amp;Prova messaggio...</source>
        <translation>Message &amp;test...</translation>
    </message>
    <message>
        <source>Il messaggio come lo riceve un destinatario</source>
        <translation>The message as a recipient gets it</translation>
    </message>
    <message>
        <source>Controllo del &amp;mittente...</source>
        <translation>&amp;Sender check...</translation>
    </message>
    <message>
        <source>Come i server dei destinatari vedono il dominio e il server di un account</source>
        <translation>How the recipients&apos; servers see the domain and the server of an account</translation>
    </message>
    <message>
        <source>&amp;Esito degli invii...</source>
        <translation>&amp;Delivery results...</translation>
    </message>
    <message>
        <source>Chi ha ricevuto i messaggi, chi no e perché</source>
        <translation>Who got the messages, who did not and why</translation>
    </message>
    <message>
        <source>&amp;Trova destinatari...</source>
        <translation>&amp;Find recipients...</translation>
    </message>
    <message>
        <source>Trova destinatari nella cartella o ovunque</source>
        <translation>Find recipients in the folder or everywhere</translation>
    </message>
    <message>
        <source>&amp;Ordina per la colonna corrente</source>
        <translation>Sort by the current &amp;column</translation>
    </message>
    <message>
        <source>Ordina l&apos;elenco per la colonna corrente; la terza volta torna l&apos;ordine di prima</source>
        <translation>Sorts the list by the current column; the third time the former order comes back</translation>
    </message>
    <message>
        <source>&amp;Indirizzi doppi...</source>
        <translation>Duplicate &amp;addresses...</translation>
    </message>
    <message>
        <source>Trova gli indirizzi selezionati più di una volta</source>
        <translation>Finds the addresses that are selected more than once</translation>
    </message>
    <message>
        <source>Recupera &amp;cartelle perdute...</source>
        <translation>Recover &amp;lost folders...</translation>
    </message>
    <message>
        <source>Riporta sotto la radice cartelle e destinatari che l&apos;albero non mostra</source>
        <translation>Brings folders and recipients that the tree does not show back below the root</translation>
    </message>
    <message>
        <source>&amp;Ultima importazione...</source>
        <translation>Last &amp;import...</translation>
    </message>
    <message>
        <source>Righe importate e rifiutate dall&apos;ultima importazione</source>
        <translation>Rows accepted and refused by the last import</translation>
    </message>
    <message>
        <source>Il record non si legge</source>
        <translation>The record cannot be read</translation>
    </message>
    <message>
        <source>tabella &quot;%1&quot; di %2</source>
        <translation>table &quot;%1&quot; of %2</translation>
    </message>
    <message>
        <source>Importazione da file di testo</source>
        <translation>Import from a text file</translation>
    </message>
    <message>
        <source>L&apos;indirizzo ha meno di %1 caratteri</source>
        <translation>The address has fewer than %1 characters</translation>
    </message>
    <message>
        <source>Lettura dei contatti di Outlook in corso… Esc per interrompere</source>
        <translation>Reading the Outlook contacts… Esc to stop</translation>
    </message>
    <message>
        <source>file</source>
        <translation>files</translation>
    </message>
    <message>
        <source>chiamate di sistema</source>
        <translation>system calls</translation>
    </message>
    <message>
        <source>memoria</source>
        <translation>memory</translation>
    </message>
    <message>
        <source>Outlook letto senza queste protezioni del sistema: </source>
        <translation>Outlook read without these protections of the system: </translation>
    </message>
    <message>
        <source>contatti di Outlook</source>
        <translation>Outlook contacts</translation>
    </message>
    <message>
        <source>Non è un contatto</source>
        <translation>Not a contact</translation>
    </message>
    <message>
        <source>rubrica</source>
        <translation>address book</translation>
    </message>
    <message>
        <source>obbligatorio</source>
        <translation>required</translation>
    </message>
    <message>
        <source>Nessun allegato</source>
        <translation>No attachments</translation>
    </message>
    <message>
        <source>Variabile oggetto non impostata</source>
        <translation>Object variable not set</translation>
    </message>
    <message>
        <source>Colore del testo</source>
        <translation>Text colour</translation>
    </message>
    <message>
        <source>Messaggio</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>Origine del messaggio</source>
        <translation>Message source</translation>
    </message>
    <message>
        <source>Anteprima del messaggio</source>
        <translation>Message preview</translation>
    </message>
    <message>
        <source>Il messaggio non è stato stampato.</source>
        <translation>The message was not printed.</translation>
    </message>
    <message>
        <source>Riprova fra qualche istante.</source>
        <translation>Try again in a moment.</translation>
    </message>
    <message>
        <source>Il testo incollato nominava file di questo computer, che sarebbero partiti con il messaggio. Sono stati lasciati fuori:</source>
        <translation>The pasted text named files of this computer, which would have left with the message. They were left out:</translation>
    </message>
    <message numerus="yes">
        <source>e altri %n</source>
        <translation>
            <numerusform>and %n other</numerusform>
            <numerusform>and %n others</numerusform>
        </translation>
    </message>
    <message>
        <source>Per mettere un&apos;immagine nel messaggio usa &quot;Inserisci immagine&quot;.</source>
        <translation>To put an image into the message use &quot;Insert image&quot;.</translation>
    </message>
    <message numerus="yes">
        <source>Nel testo incollato %n elementi restano sul web</source>
        <translation>
            <numerusform>In the pasted text %n element stays on the web</numerusform>
            <numerusform>In the pasted text %n elements stay on the web</numerusform>
        </translation>
    </message>
    <message>
        <source>Il testo resta nell&apos;origine, il messaggio è quello di prima.</source>
        <translation>The text stays in the source, the message is the former one.</translation>
    </message>
    <message>
        <source>Il file del messaggio non può contenere questi caratteri, al loro posto c&apos;è &quot;?&quot;:</source>
        <translation>The message file cannot hold these characters, &quot;?&quot; stands in their place:</translation>
    </message>
    <message>
        <source>Oggetto: </source>
        <translation>Subject: </translation>
    </message>
    <message>
        <source>Percorsi degli allegati: </source>
        <translation>Attachment paths: </translation>
    </message>
    <message>
        <source>Questi allegati non saranno trovati: rinomina i file.</source>
        <translation>These attachments will not be found: rename the files.</translation>
    </message>
    <message>
        <source>Il messaggio è stato salvato, ma così non si potrà né aprire né inviare.</source>
        <translation>The message was saved, but like this it can be neither opened nor sent.</translation>
    </message>
    <message>
        <source>Il messaggio non è stato salvato: riprova fra qualche istante.</source>
        <translation>The message was not saved: try again in a moment.</translation>
    </message>
    <message>
        <source>Il messaggio non è stato salvato in %1:</source>
        <translation>The message was not saved to %1:</translation>
    </message>
    <message>
        <source>Salvalo con un altro nome.</source>
        <translation>Save it under another name.</translation>
    </message>
    <message>
        <source>Il messaggio nella finestra resta quello di prima.</source>
        <translation>The message in the window stays the former one.</translation>
    </message>
    <message>
        <source>Una copia di recupero è danneggiata e non si può leggere.<byte value="xd"/>
Il file resta in </source>
        <translation>A recovery copy is damaged and cannot be read.<byte value="xd"/>
The file stays in </translation>
    </message>
    <message>
        <source>Il messaggio %1 non è stato salvato prima della fine del programma.<byte value="xd"/>
Oggetto: %2<byte value="xd"/>
Ultima modifica: %3<byte value="xd"/>
Vuoi recuperarlo?</source>
        <translation>The message %1 was not saved before the program ended.<byte value="xd"/>
Subject: %2<byte value="xd"/>
Last change: %3<byte value="xd"/>
Do you want to recover it?</translation>
    </message>
    <message>
        <source>Il testo recuperato è nell&apos;origine.</source>
        <translation>The recovered text is in the source.</translation>
    </message>
    <message>
        <source>Proprietà del messaggio</source>
        <translation>Message properties</translation>
    </message>
    <message>
        <source>Margine sinistro della pagina, in pixel</source>
        <translation>Left margin of the page, in pixels</translation>
    </message>
    <message>
        <source>Margine superiore della pagina, in pixel</source>
        <translation>Top margin of the page, in pixels</translation>
    </message>
    <message>
        <source>Margine orizzontale per altri programmi di posta, in pixel</source>
        <translation>Horizontal margin for other mail programs, in pixels</translation>
    </message>
    <message>
        <source>Margine verticale per altri programmi di posta, in pixel</source>
        <translation>Vertical margin for other mail programs, in pixels</translation>
    </message>
    <message>
        <source>Colore di sfondo della pagina</source>
        <translation>Background colour of the page</translation>
    </message>
    <message>
        <source>Colore dei collegamenti</source>
        <translation>Colour of the links</translation>
    </message>
    <message>
        <source>Colore dei collegamenti mentre si premono</source>
        <translation>Colour of the links while they are pressed</translation>
    </message>
    <message>
        <source>Colore dei collegamenti già visitati</source>
        <translation>Colour of the visited links</translation>
    </message>
    <message>
        <source>Percorso o indirizzo dell&apos;immagine di sfondo</source>
        <translation>Path or address of the background image</translation>
    </message>
    <message>
        <source>Il file degli invii già accettati era danneggiato ed è stato messo da parte:</source>
        <translation>The file of messages already accepted was damaged and has been set aside:</translation>
    </message>
    <message>
        <source>Chi vi era ricordato potrebbe ricevere il messaggio una seconda volta.</source>
        <translation>Whoever it remembered may get the message a second time.</translation>
    </message>
    <message>
        <source>Sfoglia il messaggio</source>
        <translation>Browse for the message</translation>
    </message>
    <message>
        <source>Invio terminato</source>
        <translation>Sending finished</translation>
    </message>
    <message>
        <source>Nessun messaggio è stato scelto.</source>
        <translation>No message was chosen.</translation>
    </message>
    <message>
        <source>Il messaggio scelto resta </source>
        <translation>The chosen message is still </translation>
    </message>
    <message>
        <source>Ogni destinatario riceverà, insieme al messaggio, questi file di questo computer.<byte value="xd"/>
Vuoi inviarli?</source>
        <translation>Together with the message every recipient will get these files of this computer.<byte value="xd"/>
Do you want to send them?</translation>
    </message>
    <message>
        <source>Non chiederlo &amp;più per questo messaggio</source>
        <translation>Do not ask &amp;again for this message</translation>
    </message>
    <message>
        <source>Il file per l&apos;assistenza non si può scrivere:</source>
        <translation>The support file cannot be written:</translation>
    </message>
    <message>
        <source>L&apos;invio prosegue senza.</source>
        <translation>Sending goes on without it.</translation>
    </message>
    <message>
        <source>Un&apos;altra finestra di Vestrola sta inviando ai destinatari di questo database.<byte value="xd"/>
Riprovare quando avrà finito.</source>
        <translation>Another window of Vestrola is sending to the recipients of this database.<byte value="xd"/>
Try again when it has finished.</translation>
    </message>
    <message>
        <source>Alcuni destinatari sono già stati serviti, ma non è possibile toglierli dalla selezione:</source>
        <translation>Some recipients were served already, but they cannot be taken out of the selection:</translation>
    </message>
    <message>
        <source>L&apos;invio non è iniziato. Riprovare più tardi.</source>
        <translation>Sending has not begun. Try again later.</translation>
    </message>
    <message>
        <source>Il disco del database è pieno. Chi riceve il messaggio resta selezionato finché non c&apos;è di nuovo posto, ma non lo riceve una seconda volta.</source>
        <translation>The disk of the database is full. Whoever gets the message stays selected until there is room again, but does not get it a second time.</translation>
    </message>
    <message>
        <source>L&apos;invio non è iniziato.</source>
        <translation>Sending has not begun.</translation>
    </message>
    <message>
        <source>Se il database non potrà essere aggiornato, non tutti i destinatari saranno serviti.</source>
        <translation>If the database cannot be updated, not all recipients will be served.</translation>
    </message>
    <message>
        <source>I messaggi di questo invio partono senza firma.</source>
        <translation>The messages of this run leave without a signature.</translation>
    </message>
    <message>
        <source>meno di un minuto</source>
        <translation>less than a minute</translation>
    </message>
    <message numerus="yes">
        <source>circa %n minuti</source>
        <translation>
            <numerusform>about a minute</numerusform>
            <numerusform>about %n minutes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>circa %n ore</source>
        <translation>
            <numerusform>about an hour</numerusform>
            <numerusform>about %n hours</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>circa %n ore e %1 min</source>
        <translation>
            <numerusform>about an hour and %1 min</numerusform>
            <numerusform>about %n hours and %1 min</numerusform>
        </translation>
    </message>
    <message>
        <source>Tempo rimanente: %1</source>
        <translation>Time left: %1</translation>
    </message>
    <message>
        <source>Il registro degli esiti non si può scrivere. %1</source>
        <translation>The record of results cannot be written. %1</translation>
    </message>
    <message>
        <source>Ultima non inviata: %1</source>
        <translation>Last one not sent: %1</translation>
    </message>
    <message>
        <source>Per chiudere: Esc o un clic</source>
        <translation>To close: Esc or a click</translation>
    </message>
    <message>
        <source>Scegliere una cartella</source>
        <translation>Choose a folder</translation>
    </message>
    <message>
        <source>Chiusura del programma</source>
        <translation>End of the program</translation>
    </message>
    <message>
        <source>&amp;Strumenti</source>
        <translation>&amp;Tools</translation>
    </message>
    <message>
        <source>Strumenti</source>
        <translation>Tools</translation>
    </message>
    <message>
        <source>Avanzamento</source>
        <translation>Progress</translation>
    </message>
    <message>
        <source>Copia di </source>
        <translation>Copy of </translation>
    </message>
    <message>
        <source>Il destinatario è compreso nel prossimo invio</source>
        <translation>The recipient is part of the next run</translation>
    </message>
    <message>
        <source>Ragione sociale (max %1 caratteri)</source>
        <translation>Company (max %1 characters)</translation>
    </message>
    <message>
        <source>Nome e/o cognome (max %1 caratteri)</source>
        <translation>First name, last name or both (max %1 characters)</translation>
    </message>
    <message>
        <source>Partita Iva o codice fiscale (max %1 caratteri)</source>
        <translation>VAT or tax no. (max %1 characters)</translation>
    </message>
    <message>
        <source>Via e numero civico (max %1 caratteri)</source>
        <translation>Street and number (max %1 characters)</translation>
    </message>
    <message>
        <source>Codice di avviamento postale (max %1 caratteri)</source>
        <translation>Postcode (max %1 characters)</translation>
    </message>
    <message>
        <source>Località (max %1 caratteri)</source>
        <translation>Town (max %1 characters)</translation>
    </message>
    <message>
        <source>Numero di telefono (max %1 caratteri)</source>
        <translation>Telephone number (max %1 characters)</translation>
    </message>
    <message>
        <source>Numero di fax (max %1 caratteri)</source>
        <translation>Fax number (max %1 characters)</translation>
    </message>
    <message>
        <source>Nuova cartella: tasto destro sulla radice</source>
        <translation>New folder: right-click the root</translation>
    </message>
    <message numerus="yes">
        <source>%Ln destinatari</source>
        <translation>
            <numerusform>%Ln recipient</numerusform>
            <numerusform>%Ln recipients</numerusform>
        </translation>
    </message>
    <message>
        <source>Destinatario da spostare: %1. Ctrl+V su una cartella lo sposta</source>
        <translation>Recipient to move: %1. Ctrl+V on a folder moves it</translation>
    </message>
    <message>
        <source>Cartella da spostare: %1. Ctrl+V su un&apos;altra cartella la sposta</source>
        <translation>Folder to move: %1. Ctrl+V on another folder moves it</translation>
    </message>
    <message>
        <source>Destinatario spostato in %1</source>
        <translation>Recipient moved to %1</translation>
    </message>
    <message>
        <source>Cartella spostata in %1</source>
        <translation>Folder moved to %1</translation>
    </message>
    <message>
        <source>La cartella non può essere spostata in %1</source>
        <translation>The folder cannot be moved to %1</translation>
    </message>
    <message>
        <source>Nessun destinatario in questa cartella</source>
        <translation>No recipients in this folder</translation>
    </message>
    <message>
        <source>Ordine dell&apos;elenco</source>
        <translation>Order of the list</translation>
    </message>
    <message>
        <source>Ordinati per %1, crescente</source>
        <translation>Sorted by %1, ascending</translation>
    </message>
    <message>
        <source>Ordinati per %1, decrescente</source>
        <translation>Sorted by %1, descending</translation>
    </message>
    <message>
        <source>Impossibile leggere i destinatari di questa cartella</source>
        <translation>The recipients of this folder cannot be read</translation>
    </message>
    <message>
        <source>Fai clic sulla cartella per vedere i destinatari</source>
        <translation>Click the folder to see the recipients</translation>
    </message>
    <message>
        <source>In questa cartella</source>
        <translation>In this folder</translation>
    </message>
    <message>
        <source>Ovunque</source>
        <translation>Everywhere</translation>
    </message>
    <message>
        <source>Ricerca non riuscita: %1</source>
        <translation>Search failed: %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln trovati, ricerca in corso…</source>
        <translation>
            <numerusform>%Ln found, searching…</numerusform>
            <numerusform>%Ln found, searching…</numerusform>
        </translation>
    </message>
    <message>
        <source>Nessun risultato</source>
        <translation>No results</translation>
    </message>
    <message>
        <source>%1 di %2</source>
        <translation>%1 of %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln trovati</source>
        <translation>
            <numerusform>%Ln found</numerusform>
            <numerusform>%Ln found</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln cartelle</source>
        <translation>
            <numerusform>%1 in %Ln folder</numerusform>
            <numerusform>%1 in %Ln folders</numerusform>
        </translation>
    </message>
    <message>
        <source>, %1 in cartelle perdute</source>
        <translation>, %1 in lost folders</translation>
    </message>
    <message>
        <source>; qui %1</source>
        <translation>; here %1</translation>
    </message>
    <message>
        <source>Recupera cartelle perdute</source>
        <translation>Recover lost folders</translation>
    </message>
    <message>
        <source>Cartella</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>Destinatari</source>
        <translation>Recipients</translation>
    </message>
    <message>
        <source>Perché non si vede</source>
        <translation>Why it is not seen</translation>
    </message>
    <message>
        <source>L&apos;albero non mostra %1 e %2.<byte value="xd"/>
Portarli sotto &quot;Database Mailing&quot;?</source>
        <translation>The tree does not show %1 and %2.<byte value="xd"/>
Bring them below &quot;Database Mailing&quot;?</translation>
    </message>
    <message numerus="yes">
        <source>%Ln cartelle</source>
        <translation>
            <numerusform>%Ln folder</numerusform>
            <numerusform>%Ln folders</numerusform>
        </translation>
    </message>
    <message>
        <source>L&apos;elenco mostra le prime %1 righe.</source>
        <translation>The list shows the first %1 rows.</translation>
    </message>
    <message>
        <source>Nessuna cartella è perduta: l&apos;albero le mostra tutte.</source>
        <translation>No folder is lost: the tree shows them all.</translation>
    </message>
    <message>
        <source>Impossibile recuperare tutte le cartelle.</source>
        <translation>Not all folders could be recovered.</translation>
    </message>
    <message>
        <source> Chiave DKIM di %1</source>
        <translation> DKIM key of %1</translation>
    </message>
    <message>
        <source>La chiave è stata creata. Pubblicare nel DNS del dominio un record TXT con questo nome e questo valore, poi premere Controlla.</source>
        <translation>The key was created. Publish a TXT record with this name and this value in the DNS of the domain, then press Check.</translation>
    </message>
    <message>
        <source>Il dominio ha già una chiave, che resta com&apos;è. Questo è il record TXT da pubblicare nel suo DNS.</source>
        <translation>The domain has a key already, which stays as it is. This is the TXT record to publish in its DNS.</translation>
    </message>
    <message>
        <source>Selettore:</source>
        <translation>Selector:</translation>
    </message>
    <message>
        <source>Nome del record:</source>
        <translation>Record name:</translation>
    </message>
    <message>
        <source>Valore:</source>
        <translation>Value:</translation>
    </message>
    <message>
        <source>Riga per un file di zona:</source>
        <translation>Line for a zone file:</translation>
    </message>
    <message>
        <source>Copia &amp;nome</source>
        <translation>Copy &amp;name</translation>
    </message>
    <message>
        <source>Il nome è negli appunti.</source>
        <translation>The name is on the clipboard.</translation>
    </message>
    <message>
        <source>Copia &amp;valore</source>
        <translation>Copy &amp;value</translation>
    </message>
    <message>
        <source>Il valore è negli appunti.</source>
        <translation>The value is on the clipboard.</translation>
    </message>
    <message>
        <source>Copia riga di &amp;zona</source>
        <translation>Copy &amp;zone line</translation>
    </message>
    <message>
        <source>La riga è negli appunti.</source>
        <translation>The line is on the clipboard.</translation>
    </message>
    <message>
        <source> Controllo del mittente</source>
        <translation> Sender check</translation>
    </message>
    <message>
        <source>Nessun account: crearne uno con File, Imposta Account.</source>
        <translation>No account: create one with File, Set up accounts.</translation>
    </message>
    <message>
        <source>Il file degli account è danneggiato: si vedono solo quelli prima del guasto.</source>
        <translation>The accounts file is damaged: only those before the damage are shown.</translation>
    </message>
    <message>
        <source>Scegliere un account e premere Controlla.</source>
        <translation>Choose an account and press Check.</translation>
    </message>
    <message>
        <source>Controllo in corso… Esc per interrompere.</source>
        <translation>Check under way… Esc to stop.</translation>
    </message>
    <message>
        <source>Interrotto</source>
        <translation>Stopped</translation>
    </message>
    <message numerus="yes">
        <source>%n righe</source>
        <translation>
            <numerusform>%n line</numerusform>
            <numerusform>%n lines</numerusform>
        </translation>
    </message>
    <message>
        <source>Controllo finito: tutto in ordine.</source>
        <translation>Check finished: everything in order.</translation>
    </message>
    <message>
        <source>Controllo finito: %1 da correggere, %2 con attenzione.</source>
        <translation>Check finished: %1 to be corrected, %2 with warnings.</translation>
    </message>
    <message>
        <source>Controllo interrotto.</source>
        <translation>Check stopped.</translation>
    </message>
    <message>
        <source>L&apos;indirizzo email dell&apos;account non è valido.</source>
        <translation>The account&apos;s email address is not valid.</translation>
    </message>
    <message>
        <source>Creare una chiave DKIM per %1?<byte value="xd"/>
Da quel momento i messaggi di questo dominio vengono firmati; la firma vale quando il suo record è pubblicato.</source>
        <translation>Create a DKIM key for %1?<byte value="xd"/>
From then on the messages of this domain are signed; the signature counts once its record is published.</translation>
    </message>
    <message>
        <source>Chiave DKIM</source>
        <translation>DKIM key</translation>
    </message>
    <message>
        <source>I file della chiave non sono stati cambiati.</source>
        <translation>The files of the key were not changed.</translation>
    </message>
    <message>
        <source>Il rapporto è negli appunti.</source>
        <translation>The report is on the clipboard.</translation>
    </message>
    <message>
        <source>&amp;Account mittente:</source>
        <translation>Sender &amp;account:</translation>
    </message>
    <message>
        <source>C&amp;ontrolla</source>
        <translation>C&amp;heck</translation>
    </message>
    <message>
        <source>&amp;Interrompi</source>
        <translation>&amp;Stop</translation>
    </message>
    <message>
        <source>Controllo</source>
        <translation>Check</translation>
    </message>
    <message>
        <source>Che cosa fare</source>
        <translation>What to do</translation>
    </message>
    <message>
        <source>Righe del controllo</source>
        <translation>Lines of the check</translation>
    </message>
    <message>
        <source>D&amp;ettagli:</source>
        <translation>D&amp;etails:</translation>
    </message>
    <message>
        <source>Crea chiave &amp;DKIM...</source>
        <translation>Create &amp;DKIM key...</translation>
    </message>
    <message>
        <source>Copia &amp;tutto</source>
        <translation>Cop&amp;y all</translation>
    </message>
    <message>
        <source>Crea la chiave con cui firmare i messaggi, o mostra quella che c&apos;è</source>
        <translation>Creates the key to sign the messages with, or shows the one that is there</translation>
    </message>
    <message>
        <source>database </source>
        <translation>database </translation>
    </message>
    <message>
        <source> Esito degli invii</source>
        <translation> Delivery results</translation>
    </message>
    <message>
        <source>Invio</source>
        <translation>Run</translation>
    </message>
    <message>
        <source>&amp;Elimina</source>
        <translation>&amp;Delete</translation>
    </message>
    <message>
        <source>Elimina &amp;tutti</source>
        <translation>Delete &amp;all</translation>
    </message>
    <message>
        <source>Indirizzo o risposta</source>
        <translation>Address or reply</translation>
    </message>
    <message>
        <source>Destinatari dell&apos;invio</source>
        <translation>Recipients of the run</translation>
    </message>
    <message>
        <source>&amp;Registra l&apos;esito dei prossimi invii</source>
        <translation>&amp;Record the results of the next runs</translation>
    </message>
    <message>
        <source>Restano gli ultimi 50 invii, nella cartella &quot;esiti&quot; dei dati del programma</source>
        <translation>The last 50 runs are kept, in the folder &quot;esiti&quot; of the program&apos;s data</translation>
    </message>
    <message>
        <source>&amp;Seleziona questi per il prossimo invio</source>
        <translation>&amp;Select these for the next run</translation>
    </message>
    <message>
        <source>C&amp;opia</source>
        <translation>C&amp;opy</translation>
    </message>
    <message>
        <source>Sal&amp;va CSV...</source>
        <translation>Sa&amp;ve CSV...</translation>
    </message>
    <message>
        <source>&amp;Deseleziona gli indirizzi inesistenti</source>
        <translation>Deselect addresses that do &amp;not exist</translation>
    </message>
    <message>
        <source>Quelli che il server del destinatario ha rifiutato come inesistenti
(codici 5.1.1, 5.1.2, 5.1.3, 5.1.6 e 5.1.10)</source>
        <translation>Those that the recipient&apos;s server refused as unknown
(codes 5.1.1, 5.1.2, 5.1.3, 5.1.6 and 5.1.10)</translation>
    </message>
    <message>
        <source>I&amp;nvio:</source>
        <translation>R&amp;un:</translation>
    </message>
    <message>
        <source>Es&amp;ito:</source>
        <translation>Resul&amp;t:</translation>
    </message>
    <message>
        <source>&amp;Motivo:</source>
        <translation>R&amp;eason:</translation>
    </message>
    <message>
        <source>Trov&amp;a:</source>
        <translation>F&amp;ind:</translation>
    </message>
    <message>
        <source>Tutti</source>
        <translation>All</translation>
    </message>
    <message>
        <source>Nessun invio registrato. L&apos;esito di ogni destinatario compare qui dopo il prossimo invio.</source>
        <translation>No run recorded. The result for each recipient appears here after the next run.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln destinatari.</source>
        <translation>
            <numerusform>%Ln recipient.</numerusform>
            <numerusform>%Ln recipients.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 di %2 destinatari.</source>
        <translation>%1 of %2 recipients.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln righe del registro sono rovinate e non vengono mostrate.</source>
        <translation>
            <numerusform>One line of the record is damaged and not shown.</numerusform>
            <numerusform>%Ln lines of the record are damaged and not shown.</numerusform>
        </translation>
    </message>
    <message>
        <source>Il registro si interrompe a metà di una riga: il programma è terminato durante l&apos;invio.</source>
        <translation>The record breaks off in the middle of a line: the program ended during the run.</translation>
    </message>
    <message>
        <source>L&apos;invio è di un altro database: la selezione non si può cambiare da qui.</source>
        <translation>The run is of another database: the selection cannot be changed from here.</translation>
    </message>
    <message>
        <source>Salva l&apos;esito dell&apos;invio</source>
        <translation>Save the results of the run</translation>
    </message>
    <message>
        <source>File CSV (*.csv)|*.csv|</source>
        <translation>CSV file (*.csv)|*.csv|</translation>
    </message>
    <message>
        <source>Il file non si può scrivere:</source>
        <translation>The file cannot be written:</translation>
    </message>
    <message numerus="yes">
        <source>%Ln di questi destinatari hanno già ricevuto il messaggio.</source>
        <translation>
            <numerusform>One of these recipients has already received the message.</numerusform>
            <numerusform>%Ln of these recipients have already received the message.</numerusform>
        </translation>
    </message>
    <message>
        <source>Selezionarli tutti lo stesso?</source>
        <translation>Select them all anyway?</translation>
    </message>
    <message>
        <source>In questo invio nessun indirizzo è risultato inesistente.</source>
        <translation>In this run no address turned out not to exist.</translation>
    </message>
    <message>
        <source>In questo invio %1 destinatari su %2 risultano inesistenti.<byte value="xd"/>
Quando sono più della metà la causa è spesso un&apos;altra: un server che rifiuta ogni destinatario, o il mittente bloccato.<byte value="xd"/>
Deselezionarli lo stesso?</source>
        <translation>In this run %1 recipients of %2 turned out not to exist.<byte value="xd"/>
When it is more than half, the cause is often another one: a server that refuses every recipient, or a blocked sender.<byte value="xd"/>
Deselect them anyway?</translation>
    </message>
    <message>
        <source>La selezione non si può cambiare:</source>
        <translation>The selection cannot be changed:</translation>
    </message>
    <message numerus="yes">
        <source>%Ln destinatari sono stati selezionati.</source>
        <translation>
            <numerusform>One recipient was selected.</numerusform>
            <numerusform>%Ln recipients were selected.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln destinatari sono stati deselezionati.</source>
        <translation>
            <numerusform>One recipient was deselected.</numerusform>
            <numerusform>%Ln recipients were deselected.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln lo erano già.</source>
        <translation>
            <numerusform>One was so already.</numerusform>
            <numerusform>%Ln were so already.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln non sono stati toccati: non ci sono più, o il loro indirizzo è cambiato.</source>
        <translation>
            <numerusform>One was not touched: it is gone, or its address has changed.</numerusform>
            <numerusform>%Ln were not touched: they are gone, or their address has changed.</numerusform>
        </translation>
    </message>
    <message>
        <source>Eliminare il registro di questo invio?<byte value="xd"/>
I destinatari restano come sono.</source>
        <translation>Delete the record of this run?<byte value="xd"/>
The recipients stay as they are.</translation>
    </message>
    <message>
        <source>Eliminare il registro di tutti gli invii?<byte value="xd"/>
I destinatari restano come sono.</source>
        <translation>Delete the record of all runs?<byte value="xd"/>
The recipients stay as they are.</translation>
    </message>
    <message>
        <source> Prova messaggio</source>
        <translation> Message test</translation>
    </message>
    <message>
        <source>File messaggio:</source>
        <translation>Message file:</translation>
    </message>
    <message>
        <source>Destinatario:</source>
        <translation>Recipient:</translation>
    </message>
    <message>
        <source>&amp;Precedente</source>
        <translation>&amp;Previous</translation>
    </message>
    <message>
        <source>&amp;Successivo</source>
        <translation>&amp;Next</translation>
    </message>
    <message>
        <source>Cerca:</source>
        <translation>Search:</translation>
    </message>
    <message>
        <source>Ce&amp;rca</source>
        <translation>Sea&amp;rch</translation>
    </message>
    <message>
        <source>Oggetto:</source>
        <translation>Subject:</translation>
    </message>
    <message>
        <source>Rilievi:</source>
        <translation>Findings:</translation>
    </message>
    <message>
        <source>&amp;Vai al primo</source>
        <translation>&amp;Go to the first</translation>
    </message>
    <message>
        <source>Account mittente:</source>
        <translation>Sender account:</translation>
    </message>
    <message>
        <source>Indirizzo della prova:</source>
        <translation>Address of the test:</translation>
    </message>
    <message>
        <source>&amp;Invia una copia di prova</source>
        <translation>&amp;Send a test copy</translation>
    </message>
    <message>
        <source>Solo testo</source>
        <translation>Text only</translation>
    </message>
    <message>
        <source>Il messaggio come lo vede il destinatario</source>
        <translation>The message as the recipient sees it</translation>
    </message>
    <message>
        <source>Il messaggio come lo legge chi non vede l&apos;HTML</source>
        <translation>The message as someone reads it who does not see HTML</translation>
    </message>
    <message>
        <source>Cerca il destinatario</source>
        <translation>Search for the recipient</translation>
    </message>
    <message>
        <source>Messaggio in HTML</source>
        <translation>Message in HTML</translation>
    </message>
    <message>
        <source>Messaggio di solo testo</source>
        <translation>Plain-text message</translation>
    </message>
    <message>
        <source>Forme del messaggio</source>
        <translation>Forms of the message</translation>
    </message>
    <message>
        <source>Mostra il messaggio del destinatario selezionato precedente</source>
        <translation>Shows the message of the previous selected recipient</translation>
    </message>
    <message>
        <source>Mostra il messaggio del destinatario selezionato successivo</source>
        <translation>Shows the message of the next selected recipient</translation>
    </message>
    <message>
        <source>Interrompe l&apos;invio della copia di prova</source>
        <translation>Stops sending the test copy</translation>
    </message>
    <message>
        <source>Mostra il primo destinatario di questo rilievo</source>
        <translation>Shows the first recipient of this finding</translation>
    </message>
    <message>
        <source>Apri messaggio</source>
        <translation>Open message</translation>
    </message>
    <message>
        <source>Nessun messaggio: salvarne uno nell&apos;editor o sceglierlo con il pulsante &quot;...&quot;.</source>
        <translation>No message: save one in the editor, or choose it with the button &quot;...&quot;.</translation>
    </message>
    <message>
        <source>I destinatari non si possono leggere: %1</source>
        <translation>The recipients cannot be read: %1</translation>
    </message>
    <message>
        <source>Nessun destinatario è selezionato: il messaggio si vede con i suoi segnaposto.</source>
        <translation>No recipient is selected: the message is shown with its placeholders.</translation>
    </message>
    <message>
        <source>Questa copia non si può mostrare: %1</source>
        <translation>This copy cannot be shown: %1</translation>
    </message>
    <message>
        <source>non c&apos;è</source>
        <translation>missing</translation>
    </message>
    <message>
        <source>Nessun allegato.</source>
        <translation>No attachments.</translation>
    </message>
    <message>
        <source>Allegati: %1.</source>
        <translation>Attachments: %1.</translation>
    </message>
    <message>
        <source>Dimensione non nota: manca l&apos;account mittente.</source>
        <translation>Size not known: the sender account is missing.</translation>
    </message>
    <message>
        <source>Il messaggio non può partire: %1</source>
        <translation>The message cannot be sent: %1</translation>
    </message>
    <message>
        <source>Messaggio intero: %1.</source>
        <translation>Whole message: %1.</translation>
    </message>
    <message>
        <source>Ricerca in corso…</source>
        <translation>Searching…</translation>
    </message>
    <message>
        <source>Nessun destinatario selezionato contiene &quot;%1&quot;.</source>
        <translation>No selected recipient contains &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Scegliere un messaggio prima di inviare la prova.</source>
        <translation>Choose a message before sending the test.</translation>
    </message>
    <message>
        <source>Nessun account: crearne uno con il comando &quot;Imposta Account&quot;.</source>
        <translation>No account: create one with the command &quot;Set up accounts&quot;.</translation>
    </message>
    <message>
        <source>L&apos;indirizzo della prova non è valido.</source>
        <translation>The address of the test is not valid.</translation>
    </message>
    <message>
        <source>La prova non è stata inviata.</source>
        <translation>The test was not sent.</translation>
    </message>
    <message>
        <source>Invio della prova a %1… Esc per interrompere.</source>
        <translation>Sending the test to %1… Esc to stop.</translation>
    </message>
    <message>
        <source>La copia di prova porta con sé questi file di questo computer.<byte value="xd"/>
Vuoi inviarli?</source>
        <translation>The test copy takes these files of this computer along.<byte value="xd"/>
Do you want to send them?</translation>
    </message>
    <message>
        <source>La prova non è stata consegnata. Invio interrotto.</source>
        <translation>The test was not delivered. Sending was stopped.</translation>
    </message>
    <message>
        <source>La prova è stata accettata dal server per %1.</source>
        <translation>The server accepted the test for %1.</translation>
    </message>
    <message>
        <source>La prova non è stata consegnata.</source>
        <translation>The test was not delivered.</translation>
    </message>
    <message>
        <source>Il server ha risposto: %1</source>
        <translation>The server replied: %1</translation>
    </message>
    <message>
        <source>I campi dei destinatari non si possono controllare: %1</source>
        <translation>The recipients&apos; fields cannot be checked: %1</translation>
    </message>
    <message>
        <source>Rilievi (controllo dei destinatari in corso):</source>
        <translation>Findings (checking the recipients):</translation>
    </message>
    <message>
        <source>Rilievi: nessuno</source>
        <translation>Findings: none</translation>
    </message>
    <message>
        <source>Rilievi: %1</source>
        <translation>Findings: %1</translation>
    </message>
    <message>
        <source>Dall&apos;avvio del programma non è stata fatta nessuna importazione.</source>
        <translation>No import has been made since the program started.</translation>
    </message>
    <message>
        <source>Da %1, %2.
Importate %3, rifiutate %4.</source>
        <translation>From %1, %2.
Imported %3, refused %4.</translation>
    </message>
    <message>
        <source>Nel database ne sono rimaste %1: le ultime non sono state scritte.</source>
        <translation>%1 of them remained in the database: the last ones were not written.</translation>
    </message>
    <message>
        <source>L&apos;elenco ha le prime %1 righe importate e le prime %1 rifiutate.</source>
        <translation>The list has the first %1 imported rows and the first %1 refused ones.</translation>
    </message>
    <message>
        <source>Righe rifiutate</source>
        <translation>Refused rows</translation>
    </message>
    <message>
        <source>Righe importate</source>
        <translation>Imported rows</translation>
    </message>
    <message>
        <source>Tutte le righe</source>
        <translation>All rows</translation>
    </message>
    <message>
        <source>Co&amp;pia</source>
        <translation>Co&amp;py</translation>
    </message>
    <message>
        <source>Ultima importazione</source>
        <translation>Last import</translation>
    </message>
    <message>
        <source>Righe dell&apos;ultima importazione</source>
        <translation>Rows of the last import</translation>
    </message>
    <message>
        <source>Riga</source>
        <translation>Row</translation>
    </message>
    <message>
        <source>Testo</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>&amp;Mostra:</source>
        <translation>&amp;Show:</translation>
    </message>
    <message>
        <source>Importata</source>
        <translation>Imported</translation>
    </message>
    <message>
        <source>Rifiutata</source>
        <translation>Refused</translation>
    </message>
    <message>
        <source>(cartella perduta)</source>
        <translation>(lost folder)</translation>
    </message>
    <message>
        <source>%1 (cartella perduta)</source>
        <translation>%1 (lost folder)</translation>
    </message>
    <message>
        <source>Indirizzi doppi</source>
        <translation>Duplicate addresses</translation>
    </message>
    <message>
        <source>Numero</source>
        <translation>Number</translation>
    </message>
    <message>
        <source>Con &quot;Sì&quot;</source>
        <translation>With &quot;Yes&quot;</translation>
    </message>
    <message>
        <source>Resta selezionato</source>
        <translation>Stays selected</translation>
    </message>
    <message>
        <source>Viene deselezionato</source>
        <translation>Is deselected</translation>
    </message>
    <message numerus="yes">
        <source>%Ln indirizzi sono selezionati più di una volta.</source>
        <translation>
            <numerusform>%Ln address is selected more than once.</numerusform>
            <numerusform>%Ln addresses are selected more than once.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Deselezionare i %Ln doppioni, uno escluso per indirizzo?</source>
        <translation>
            <numerusform>Deselect the duplicate?</numerusform>
            <numerusform>Deselect the %Ln duplicates, all but one for each address?</numerusform>
        </translation>
    </message>
    <message>
        <source>L&apos;elenco mostra i primi %1 destinatari.</source>
        <translation>The list shows the first %1 recipients.</translation>
    </message>
    <message>
        <source>Nessun indirizzo è selezionato più di una volta.</source>
        <translation>No address is selected more than once.</translation>
    </message>
    <message>
        <source>Impossibile controllare gli indirizzi.</source>
        <translation>The addresses cannot be checked.</translation>
    </message>
    <message>
        <source>Errore %1:<byte value="xd"/>
<byte value="xd"/>
%2</source>
        <translation>Error %1:<byte value="xd"/>
<byte value="xd"/>
%2</translation>
    </message>
    <message>
        <source>Ricerca del server di posta non riuscita: %1. Riprovare più tardi.</source>
        <translation>The look-up of the mail server failed: %1. Try again later.</translation>
    </message>
    <message>
        <source>file di testo </source>
        <translation>text file </translation>
    </message>
    <message>
        <source>Ricerca di %1 nel DNS non riuscita: %2. Riprovare più tardi.</source>
        <translation>The look-up of %1 in the DNS failed: %2. Try again later.</translation>
    </message>
    <message>
        <source>il DNS risponde con il codice di errore %1</source>
        <translation>the DNS answers with the error code %1</translation>
    </message>
    <message>
        <source>la risposta del DNS è danneggiata</source>
        <translation>the answer of the DNS is damaged</translation>
    </message>
    <message>
        <source>la risposta del DNS ha troppi record</source>
        <translation>the answer of the DNS has too many records</translation>
    </message>
    <message>
        <source>il DNS non risponde</source>
        <translation>the DNS does not answer</translation>
    </message>
    <message>
        <source>nessun server DNS è raggiungibile</source>
        <translation>no DNS server can be reached</translation>
    </message>
    <message>
        <source>il DNS risponde con un guasto (SERVFAIL)</source>
        <translation>the DNS answers with a failure (SERVFAIL)</translation>
    </message>
    <message>
        <source>il DNS rifiuta la domanda (REFUSED)</source>
        <translation>the DNS refuses the question (REFUSED)</translation>
    </message>
    <message>
        <source>il DNS non conosce domande di questo tipo (NOTIMP)</source>
        <translation>the DNS knows no questions of this kind (NOTIMP)</translation>
    </message>
    <message>
        <source>il DNS non capisce la domanda (FORMERR)</source>
        <translation>the DNS does not understand the question (FORMERR)</translation>
    </message>
    <message>
        <source>il DNS ha dato una risposta che non si può usare</source>
        <translation>the DNS has given an answer that cannot be used</translation>
    </message>
    <message>
        <source>il DNS di questo computer non è impostato</source>
        <translation>the DNS of this computer is not set up</translation>
    </message>
    <message>
        <source>Ricerca non riuscita: questa cartella non si può leggere</source>
        <translation>Search failed: this folder cannot be read</translation>
    </message>
    <message>
        <source>Trovati: %1. Il database è usato da un altro programma: la ricerca riprende quando è libero.</source>
        <translation>Found: %1. Another program is using the database: the search goes on when it is free.</translation>
    </message>
    <message>
        <source>; questa cartella non si può leggere</source>
        <translation>; this folder cannot be read</translation>
    </message>
    <message>
        <source>La prova può essere stata consegnata: il server ha ricevuto tutto il messaggio e non ha risposto.</source>
        <translation>The test may have been delivered: the server received the whole message and did not answer.</translation>
    </message>
    <message>
        <source>Non c&apos;è nessuna rubrica.</source>
        <translation>There is no address book.</translation>
    </message>
    <message>
        <source>Lettura interrotta.</source>
        <translation>Reading was stopped.</translation>
    </message>
    <message>
        <source>Il lettore di Outlook non c&apos;è.</source>
        <translation>The reader for Outlook is missing.</translation>
    </message>
    <message>
        <source>Outlook non ha risposto in tempo.</source>
        <translation>Outlook did not reply in time.</translation>
    </message>
    <message>
        <source>I contatti di Outlook non sono leggibili.</source>
        <translation>The Outlook contacts cannot be read.</translation>
    </message>
    <message>
        <source>La rubrica non è leggibile.</source>
        <translation>The address book is not readable.</translation>
    </message>
    <message>
        <source>Impossibile leggere la rubrica.</source>
        <translation>The address book cannot be read.</translation>
    </message>
    <message>
        <source>La rubrica cambia di continuo.</source>
        <translation>The address book keeps changing.</translation>
    </message>
    <message>
        <source>La rubrica non esiste.</source>
        <translation>The address book does not exist.</translation>
    </message>
    <message>
        <source>Il corpo del messaggio non si può aprire: </source>
        <translation>The message body cannot be opened: </translation>
    </message>
    <message>
        <source>è troppo grande (più di %1 milioni di caratteri).</source>
        <translation>it is too large (more than %1 million characters).</translation>
    </message>
    <message>
        <source>ha troppi elementi (più di %1).</source>
        <translation>it has too many elements (more than %1).</translation>
    </message>
    <message>
        <source>un elemento ha troppi attributi (più di %1).</source>
        <translation>an element has too many attributes (more than %1).</translation>
    </message>
    <message>
        <source>ha troppi elementi uno dentro l&apos;altro (più di %1).</source>
        <translation>it has too many elements inside one another (more than %1).</translation>
    </message>
    <message>
        <source>il suo codice HTML è troppo intricato.</source>
        <translation>its HTML code is too tangled.</translation>
    </message>
    <message>
        <source>Impossibile mostrare il messaggio. Il testo è conservato.</source>
        <translation>The message cannot be shown. The text is kept.</translation>
    </message>
    <message>
        <source>Impossibile caricare la vista dei messaggi: %1</source>
        <translation>The message view cannot be loaded: %1</translation>
    </message>
    <message>
        <source>Impossibile stampare il messaggio.</source>
        <translation>The message cannot be printed.</translation>
    </message>
    <message>
        <source>Impossibile scrivere %1: %2</source>
        <translation>%1 cannot be written: %2</translation>
    </message>
    <message>
        <source>La stampante non ha preso il messaggio. %1</source>
        <translation>The printer did not take the message. %1</translation>
    </message>
    <message>
        <source>La vista del messaggio non risponde.</source>
        <translation>The message view does not respond.</translation>
    </message>
    <message>
        <source>Il browser non ha dato alcuna risposta in tempo.</source>
        <translation>The browser gave no reply in time.</translation>
    </message>
    <message>
        <source>Per %1 manca il client_id: va scritto nel file %2, dopo aver registrato il programma presso il fornitore.</source>
        <translation>The client_id for %1 is missing: write it into the file %2 after registering the program with the provider.</translation>
    </message>
    <message>
        <source>Il consenso non è stato dato.</source>
        <translation>Consent was not given.</translation>
    </message>
    <message>
        <source>Il fornitore ha rifiutato la richiesta: %1</source>
        <translation>The provider refused the request: %1</translation>
    </message>
    <message>
        <source>Il fornitore non accetta la risposta del browser: riprovare.</source>
        <translation>The provider does not accept the browser&apos;s reply: try again.</translation>
    </message>
    <message>
        <source>Manca il file %1.</source>
        <translation>The file %1 is missing.</translation>
    </message>
    <message>
        <source>Impossibile leggere il file %1: %2.</source>
        <translation>The file %1 cannot be read: %2.</translation>
    </message>
    <message>
        <source>non è un elenco</source>
        <translation>is no list</translation>
    </message>
    <message>
        <source>l&apos;elenco è vuoto</source>
        <translation>the list is empty</translation>
    </message>
    <message>
        <source>una voce è vuota</source>
        <translation>an entry is empty</translation>
    </message>
    <message>
        <source>non è un indirizzo</source>
        <translation>is no address</translation>
    </message>
    <message>
        <source>deve cominciare con https://</source>
        <translation>must begin with https://</translation>
    </message>
    <message>
        <source>non può contenere né un utente né un frammento</source>
        <translation>can contain neither a user nor a fragment</translation>
    </message>
    <message>
        <source>non è un oggetto</source>
        <translation>is no object</translation>
    </message>
    <message>
        <source> è del programma</source>
        <translation> belongs to the program</translation>
    </message>
    <message>
        <source>non è un testo</source>
        <translation>is no text</translation>
    </message>
    <message>
        <source>il testo è troppo lungo o contiene caratteri non ammessi</source>
        <translation>the text is too long or has characters that are not allowed</translation>
    </message>
    <message>
        <source>una voce contiene caratteri non ammessi</source>
        <translation>an entry has characters that are not allowed</translation>
    </message>
    <message>
        <source>una voce non è il nome di un server</source>
        <translation>an entry is not the name of a server</translation>
    </message>
    <message>
        <source>sono ammessi solo 127.0.0.1, localhost e [::1]</source>
        <translation>only 127.0.0.1, localhost and [::1] are allowed</translation>
    </message>
    <message>
        <source>Il file %1 non è valido: %2.</source>
        <translation>The file %1 is not valid: %2.</translation>
    </message>
    <message>
        <source>non contiene un oggetto</source>
        <translation>it contains no object</translation>
    </message>
    <message>
        <source>non è JSON dal byte %1</source>
        <translation>it is not JSON from byte %1 on</translation>
    </message>
    <message>
        <source>il nome di un fornitore può contenere solo a-z, 0-9 e &quot;-&quot;</source>
        <translation>a provider&apos;s name can contain only a-z, 0-9 and &quot;-&quot;</translation>
    </message>
    <message>
        <source> non è un oggetto</source>
        <translation> is no object</translation>
    </message>
    <message>
        <source> è scritto due volte</source>
        <translation> is written twice</translation>
    </message>
    <message>
        <source>Impossibile attendere la risposta del browser: %1</source>
        <translation>Waiting for the browser&apos;s reply is not possible: %1</translation>
    </message>
    <message>
        <source>Richiesta non valida.</source>
        <translation>Invalid request.</translation>
    </message>
    <message>
        <source>Pagina inesistente.</source>
        <translation>No such page.</translation>
    </message>
    <message>
        <source>Questa risposta non appartiene all&apos;accesso in corso.</source>
        <translation>This reply does not belong to the login under way.</translation>
    </message>
    <message>
        <source>Risposta ricevuta: si può chiudere questa pagina e tornare a Vestrola.</source>
        <translation>Reply received: you can close this page and go back to Vestrola.</translation>
    </message>
    <message>
        <source>L&apos;accesso non è stato concesso: si può chiudere questa pagina.</source>
        <translation>The login was not granted: you can close this page.</translation>
    </message>
    <message>
        <source>La risposta del fornitore non è valida.</source>
        <translation>The provider&apos;s reply is not valid.</translation>
    </message>
    <message>
        <source>Il consenso è scaduto o è stato ritirato: nella finestra degli account accedere di nuovo con il browser.</source>
        <translation>The consent has expired or was withdrawn: log in with the browser again in the accounts window.</translation>
    </message>
    <message>
        <source>Il fornitore non riconosce client_id o client_secret: %1</source>
        <translation>The provider does not recognize client_id or client_secret: %1</translation>
    </message>
    <message>
        <source>Il consenso dato non comprende l&apos;invio della posta.</source>
        <translation>The consent given does not cover sending mail.</translation>
    </message>
    <message>
        <source>Impossibile leggere il file %1</source>
        <translation>The file %1 cannot be read</translation>
    </message>
    <message>
        <source>Manca il consenso del fornitore: nella finestra degli account accedere con il browser.</source>
        <translation>The provider&apos;s consent is missing: log in with the browser in the accounts window.</translation>
    </message>
    <message>
        <source>Il file %1 è un collegamento.</source>
        <translation>The file %1 is a link.</translation>
    </message>
    <message>
        <source>Il file %1 è danneggiato: nella finestra degli account accedere di nuovo con il browser.</source>
        <translation>The file %1 is damaged: log in with the browser again in the accounts window.</translation>
    </message>
    <message>
        <source>Impossibile scrivere il file %1.</source>
        <translation>The file %1 cannot be written.</translation>
    </message>
    <message>
        <source>Il fornitore non è raggiungibile: %1</source>
        <translation>The provider cannot be reached: %1</translation>
    </message>
    <message>
        <source>tempo scaduto.</source>
        <translation>timed out.</translation>
    </message>
    <message>
        <source>La risposta del fornitore è troppo grande.</source>
        <translation>The provider&apos;s reply is too large.</translation>
    </message>
    <message>
        <source>Il fornitore rimanda a un altro indirizzo, che non viene seguito.</source>
        <translation>The provider redirects to another address, which is not followed.</translation>
    </message>
    <message>
        <source>errore %1 del suo server.</source>
        <translation>error %1 of its server.</translation>
    </message>
    <message>
        <source>Il fornitore ha rifiutato la richiesta.</source>
        <translation>The provider refused the request.</translation>
    </message>
    <message>
        <source>Il consenso è scaduto e il fornitore non permette di rinnovarlo: nella finestra degli account accedere di nuovo con il browser.</source>
        <translation>The consent has expired and the provider does not let it be renewed: log in with the browser again in the accounts window.</translation>
    </message>
    <message>
        <source>Il server %1 non appartiene a un fornitore del file %2: nessun token gli viene inviato.</source>
        <translation>The server %1 does not belong to a provider of the file %2: no token is sent to it.</translation>
    </message>
    <message>
        <source>Il portachiavi del desktop non c&apos;è.</source>
        <translation>There is no desktop keyring.</translation>
    </message>
    <message>
        <source>Attesa del portachiavi interrotta.</source>
        <translation>Waiting for the keyring was stopped.</translation>
    </message>
    <message>
        <source>Il portachiavi non ha questa password.</source>
        <translation>The keyring does not have this password.</translation>
    </message>
    <message>
        <source>Il portachiavi non risponde: </source>
        <translation>The keyring does not respond: </translation>
    </message>
    <message>
        <source>Il portachiavi non conserva la password così com&apos;è.</source>
        <translation>The keyring does not keep the password as it is.</translation>
    </message>
    <message>
        <source>Non è un file</source>
        <translation>Not a file</translation>
    </message>
    <message>
        <source>Il percorso è un collegamento</source>
        <translation>The path is a link</translation>
    </message>
    <message>
        <source>Il file appartiene a un altro utente</source>
        <translation>The file belongs to another user</translation>
    </message>
    <message>
        <source>Il file può essere letto da altri utenti</source>
        <translation>Other users can read the file</translation>
    </message>
    <message>
        <source>Il percorso è un collegamento di un altro utente</source>
        <translation>The path is a link of another user</translation>
    </message>
    <message>
        <source>Il file è in uso</source>
        <translation>The file is in use</translation>
    </message>
    <message>
        <source>%1 è un collegamento di un altro utente</source>
        <translation>%1 is a link of another user</translation>
    </message>
    <message>
        <source>altri utenti possono %1 %2: deve essere un file dell&apos;utente con i permessi %3</source>
        <translation>other users can %1 %2: it must be a file of the user with the permissions %3</translation>
    </message>
    <message>
        <source>leggere o scrivere</source>
        <translation>read or write</translation>
    </message>
    <message>
        <source>scrivere</source>
        <translation>write</translation>
    </message>
    <message>
        <source>Impossibile scrivere il file </source>
        <translation>Cannot write the file </translation>
    </message>
    <message>
        <source>Impossibile preparare la cartella </source>
        <translation>Cannot prepare the folder </translation>
    </message>
    <message>
        <source>Impossibile aprire </source>
        <translation>Cannot open </translation>
    </message>
    <message>
        <source>Un comando non può eseguire una SELECT.</source>
        <translation>A command cannot run a SELECT.</translation>
    </message>
    <message>
        <source>Tempo scaduto.</source>
        <translation>Time expired.</translation>
    </message>
    <message>
        <source>Formato della stringa di connessione non valido.</source>
        <translation>Invalid format of the connection string.</translation>
    </message>
    <message>
        <source>Impossibile trovare il provider &quot;%1&quot;.</source>
        <translation>The provider &quot;%1&quot; cannot be found.</translation>
    </message>
    <message>
        <source>Nessun file di database indicato.</source>
        <translation>No database file is stated.</translation>
    </message>
    <message>
        <source>Tipo di dati non corrispondente nel campo &quot;%1&quot;.</source>
        <translation>Data type mismatch in the field &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Valore troppo grande per il campo &quot;%1&quot;.</source>
        <translation>The value is too large for the field &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>L&apos;istruzione non è una INSERT di valori.</source>
        <translation>The statement is not an INSERT of values.</translation>
    </message>
    <message>
        <source>L&apos;identità di un record non può essere scelta.</source>
        <translation>The identity of a record cannot be chosen.</translation>
    </message>
    <message>
        <source>Il record è stato eliminato.</source>
        <translation>The record was deleted.</translation>
    </message>
    <message>
        <source>Nessun record corrente.</source>
        <translation>No current record.</translation>
    </message>
    <message>
        <source>Operazione non consentita se l&apos;oggetto è chiuso.</source>
        <translation>Operation not allowed when the object is closed.</translation>
    </message>
    <message>
        <source>Il recordset corrente non supporta l&apos;aggiornamento.</source>
        <translation>The current recordset does not support updating.</translation>
    </message>
    <message>
        <source>Impossibile trovare il campo &quot;%1&quot;.</source>
        <translation>The field &quot;%1&quot; cannot be found.</translation>
    </message>
    <message>
        <source>L&apos;origine di un recordset deve essere una SELECT.</source>
        <translation>The source of a recordset must be a SELECT.</translation>
    </message>
    <message>
        <source>Errore interno del database: una riga ha perso il suo posto.</source>
        <translation>Internal error of the database: a row has lost its place.</translation>
    </message>
    <message>
        <source>Impossibile avviare il motore SQL.</source>
        <translation>The SQL engine cannot be started.</translation>
    </message>
    <message>
        <source>La struttura del database è stata modificata.</source>
        <translation>The structure of the database has changed.</translation>
    </message>
    <message>
        <source>Un&apos;altra istruzione è in attesa del database.</source>
        <translation>Another statement is waiting for the database.</translation>
    </message>
    <message>
        <source>Errore di sintassi nell&apos;istruzione SQL vicino a &quot;%1&quot;.</source>
        <translation>Syntax error in the SQL statement near &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Il numero dei valori non corrisponde al numero dei campi di destinazione.</source>
        <translation>The number of values does not match the number of target fields.</translation>
    </message>
    <message>
        <source>Istruzione SQL non ammessa.</source>
        <translation>SQL statement not allowed.</translation>
    </message>
    <message>
        <source>Istruzione SQL non valida.</source>
        <translation>Invalid SQL statement.</translation>
    </message>
    <message>
        <source>La tabella &quot;%1&quot; è riservata al sistema.</source>
        <translation>The table &quot;%1&quot; is reserved for the system.</translation>
    </message>
    <message>
        <source>La tabella &quot;%1&quot; non può essere usata nelle istruzioni SQL.</source>
        <translation>The table &quot;%1&quot; cannot be used in SQL statements.</translation>
    </message>
    <message>
        <source>L&apos;istruzione non è una SELECT.</source>
        <translation>The statement is not a SELECT.</translation>
    </message>
    <message>
        <source>L&apos;istruzione deve leggere tutte le colonne di una tabella.</source>
        <translation>The statement must read all columns of a table.</translation>
    </message>
    <message>
        <source>Il record è troppo lungo.</source>
        <translation>The record is too long.</translation>
    </message>
    <message>
        <source>Troppi record per essere mostrati.</source>
        <translation>Too many records to be shown.</translation>
    </message>
    <message>
        <source>carattere nullo</source>
        <translation>null character</translation>
    </message>
    <message>
        <source>commento</source>
        <translation>comment</translation>
    </message>
    <message>
        <source>parametro</source>
        <translation>parameter</translation>
    </message>
    <message>
        <source>virgolette fuori da un testo</source>
        <translation>quotation marks outside a text</translation>
    </message>
    <message>
        <source>manca un apice di chiusura</source>
        <translation>a closing apostrophe is missing</translation>
    </message>
    <message>
        <source>manca una parentesi quadra di chiusura</source>
        <translation>a closing square bracket is missing</translation>
    </message>
    <message>
        <source>manca un cancelletto di chiusura</source>
        <translation>a closing number sign is missing</translation>
    </message>
    <message>
        <source>Istruzione SQL non ammessa: %1.</source>
        <translation>SQL statement not allowed: %1.</translation>
    </message>
    <message>
        <source>Errore di sintassi nell&apos;istruzione SQL: %1.</source>
        <translation>Syntax error in the SQL statement: %1.</translation>
    </message>
    <message>
        <source>forma non prevista</source>
        <translation>unexpected form</translation>
    </message>
    <message>
        <source>i valori da inserire non sono leggibili</source>
        <translation>the values to insert cannot be read</translation>
    </message>
    <message>
        <source>la data #%1# non è valida</source>
        <translation>the date #%1# is not valid</translation>
    </message>
    <message>
        <source>testo troppo lungo</source>
        <translation>text too long</translation>
    </message>
    <message>
        <source>più di una istruzione</source>
        <translation>more than one statement</translation>
    </message>
    <message>
        <source>istruzione vuota</source>
        <translation>empty statement</translation>
    </message>
    <message>
        <source>Il disco è pieno: il file &quot;%1&quot; non trova posto.</source>
        <translation>The disk is full: there is no room for the file &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Impossibile aprire il file &quot;%1&quot;.</source>
        <translation>The file &quot;%1&quot; cannot be opened.</translation>
    </message>
    <message>
        <source>L&apos;indirizzo di posta elettronica non è valido.</source>
        <translation>The email address is not valid.</translation>
    </message>
    <message>
        <source>L&apos;allegato %1 %2.</source>
        <translation>The attachment %1 %2.</translation>
    </message>
    <message>
        <source>non esiste</source>
        <translation>does not exist</translation>
    </message>
    <message>
        <source>è troppo grande</source>
        <translation>is too large</translation>
    </message>
    <message>
        <source>Il nome utente contiene un carattere non ammesso.</source>
        <translation>The user name contains a character that is not allowed.</translation>
    </message>
    <message>
        <source>non si può leggere</source>
        <translation>cannot be read</translation>
    </message>
    <message>
        <source>non è il file che è stato confermato</source>
        <translation>is not the file that was confirmed</translation>
    </message>
    <message>
        <source>Invio interrotto.</source>
        <translation>Sending interrupted.</translation>
    </message>
    <message>
        <source>Risposta in ritardo al messaggio di prima</source>
        <translation>Late reply to the previous message</translation>
    </message>
    <message>
        <source>Il destinatario non è stato letto: nessun invio.</source>
        <translation>The recipient was not read: nothing is sent.</translation>
    </message>
    <message>
        <source>L&apos;invio è stato fermato: nessun invio fino al prossimo avvio.</source>
        <translation>Sending was stopped: nothing is sent until the next start.</translation>
    </message>
    <message>
        <source>L&apos;indirizzo del destinatario non è stato letto: nessun invio.</source>
        <translation>The recipient&apos;s address was not read: nothing is sent.</translation>
    </message>
    <message>
        <source>Il messaggio per questo destinatario è già stato accettato in questo invio.</source>
        <translation>The message for this recipient was already accepted in this run.</translation>
    </message>
    <message>
        <source>Il messaggio per questo destinatario è già stato accettato.</source>
        <translation>The message for this recipient was already accepted.</translation>
    </message>
    <message>
        <source>Non c&apos;è più spazio per ricordare i messaggi accettati.</source>
        <translation>There is no more room to remember the accepted messages.</translation>
    </message>
    <message>
        <source>Il destinatario è stato selezionato di nuovo.</source>
        <translation>The recipient was selected again.</translation>
    </message>
    <message>
        <source>Il file %1 esiste già.</source>
        <translation>The file %1 already exists.</translation>
    </message>
    <message>
        <source>Non è possibile scrivere il file %1.</source>
        <translation>The file %1 cannot be written.</translation>
    </message>
    <message>
        <source>La chiave non si può leggere.</source>
        <translation>The key cannot be read.</translation>
    </message>
    <message>
        <source>Il dominio non è valido.</source>
        <translation>The domain is not valid.</translation>
    </message>
    <message>
        <source>Il dominio ha già una chiave o un selettore: %1.pem, %1.selector.</source>
        <translation>The domain already has a key or a selector: %1.pem, %1.selector.</translation>
    </message>
    <message>
        <source>Non è possibile creare la cartella %1.</source>
        <translation>The folder %1 cannot be created.</translation>
    </message>
    <message>
        <source>La creazione della chiave non è riuscita.</source>
        <translation>The key could not be created.</translation>
    </message>
    <message>
        <source>Messaggio non firmato (DKIM): %1.</source>
        <translation>Message not signed (DKIM): %1.</translation>
    </message>
    <message>
        <source>il selettore manca o non è valido</source>
        <translation>the selector is missing or not valid</translation>
    </message>
    <message>
        <source>la chiave manca o non è una chiave RSA</source>
        <translation>the key is missing or is no RSA key</translation>
    </message>
    <message>
        <source>la chiave ha meno di %1 bit</source>
        <translation>the key has fewer than %1 bits</translation>
    </message>
    <message>
        <source>la firma non è riuscita</source>
        <translation>the signing failed</translation>
    </message>
    <message>
        <source>Il server non ha completato l&apos;autenticazione.</source>
        <translation>The server did not complete the authentication.</translation>
    </message>
    <message>
        <source>Il server non accetta il consenso di OAuth 2.0 per l&apos;utente %1: %2</source>
        <translation>The server does not accept the OAuth 2.0 consent for the user %1: %2</translation>
    </message>
    <message>
        <source>La password non viene inviata in chiaro a %1, che non offre una connessione TLS. Per inviarla ugualmente scrivere il nome del server nel file %2.</source>
        <translation>The password is not sent in the clear to %1, which offers no TLS connection. To send it all the same, write the name of the server into the file %2.</translation>
    </message>
    <message>
        <source>Il server non offre l&apos;accesso con OAuth 2.0.</source>
        <translation>The server does not offer login by OAuth 2.0.</translation>
    </message>
    <message>
        <source>Il server non offre un metodo di autenticazione conosciuto.</source>
        <translation>The server offers no known method of authentication.</translation>
    </message>
    <message>
        <source>Il file &quot;%1&quot; non si può eliminare.</source>
        <translation>The file &quot;%1&quot; cannot be deleted.</translation>
    </message>
    <message>
        <source>La cartella &quot;%1&quot; non si può creare.</source>
        <translation>The folder &quot;%1&quot; cannot be created.</translation>
    </message>
    <message>
        <source>Il file &quot;%1&quot; non si può scrivere: %2</source>
        <translation>The file &quot;%1&quot; cannot be written: %2</translation>
    </message>
    <message>
        <source>Autenticazione non riuscita: %1</source>
        <translation>Authentication failed: %1</translation>
    </message>
    <message>
        <source>Il nome utente o la password contengono un carattere non ammesso.</source>
        <translation>The user name or the password contains a character that is not allowed.</translation>
    </message>
    <message>
        <source>Il server rifiuta il messaggio per le sue regole</source>
        <translation>The server refuses the message because of its rules</translation>
    </message>
    <message>
        <source>Il server limita il numero o la frequenza degli invii</source>
        <translation>The server limits the number or the rate of messages</translation>
    </message>
    <message>
        <source>Il server considera il messaggio posta indesiderata (spam)</source>
        <translation>The server considers the message unsolicited mail (spam)</translation>
    </message>
    <message>
        <source>%1, per ora, codice %2: %3</source>
        <translation>%1, for now, code %2: %3</translation>
    </message>
    <message>
        <source>%1, codice %2: %3</source>
        <translation>%1, code %2: %3</translation>
    </message>
    <message>
        <source>Server %1 non trovato.</source>
        <translation>Server %1 not found.</translation>
    </message>
    <message>
        <source>Connessione rifiutata da %1, porta %2.</source>
        <translation>Connection refused by %1, port %2.</translation>
    </message>
    <message>
        <source>Il server ha chiuso la connessione.</source>
        <translation>The server has closed the connection.</translation>
    </message>
    <message>
        <source>Errore di rete: %1</source>
        <translation>Network error: %1</translation>
    </message>
    <message>
        <source>Il dominio del destinatario non ha un server di posta.</source>
        <translation>The recipient&apos;s domain has no mail server.</translation>
    </message>
    <message>
        <source>Risposta del server non valida: %1</source>
        <translation>Invalid reply of the server: %1</translation>
    </message>
    <message>
        <source>Risposta del server inattesa: %1 %2</source>
        <translation>Unexpected reply of the server: %1 %2</translation>
    </message>
    <message>
        <source>Il server non offre più la connessione TLS, che ha offerto in passato. Per dimenticarlo cancellare la sua riga dal file %1.</source>
        <translation>The server no longer offers the TLS connection that it offered in the past. To forget about that, delete its line in the file %1.</translation>
    </message>
    <message>
        <source>Il server non accetta indirizzi con caratteri internazionali.</source>
        <translation>The server does not accept addresses with international characters.</translation>
    </message>
    <message>
        <source>il certificato è autofirmato</source>
        <translation>the certificate is self-signed</translation>
    </message>
    <message>
        <source>il certificato è scaduto</source>
        <translation>the certificate has expired</translation>
    </message>
    <message>
        <source>il certificato non è ancora valido</source>
        <translation>the certificate is not valid yet</translation>
    </message>
    <message>
        <source>il certificato è di un altro server</source>
        <translation>the certificate belongs to another server</translation>
    </message>
    <message>
        <source>l&apos;autorità che ha emesso il certificato non è attendibile</source>
        <translation>the authority that issued the certificate is not trusted</translation>
    </message>
    <message>
        <source>Il server ha aggiunto testo in chiaro alla risposta a STARTTLS.</source>
        <translation>The server added text in the clear to its reply to STARTTLS.</translation>
    </message>
    <message>
        <source>in chiaro</source>
        <translation>in the clear</translation>
    </message>
    <message>
        <source>%1, %2, certificato %3</source>
        <translation>%1, %2, certificate %3</translation>
    </message>
    <message>
        <source>non verificato</source>
        <translation>not verified</translation>
    </message>
    <message>
        <source>valido</source>
        <translation>valid</translation>
    </message>
    <message>
        <source>Connessione TLS non riuscita: %1.</source>
        <translation>TLS connection failed: %1.</translation>
    </message>
    <message>
        <source>Il token di OAuth 2.0 non viene inviato a %1: la connessione non è protetta da TLS con un certificato valido.</source>
        <translation>The OAuth 2.0 token is not sent to %1: the connection is not protected by TLS with a valid certificate.</translation>
    </message>
    <message>
        <source>Uso non valido di Null.</source>
        <translation>Invalid use of Null.</translation>
    </message>
    <message>
        <source>Tipo non corrispondente.</source>
        <translation>Type mismatch.</translation>
    </message>
    <message>
        <source>Overflow.</source>
        <translation>Overflow.</translation>
    </message>
    <message>
        <source>La tabella &quot;%1&quot; non ha un contatore.</source>
        <translation>The table &quot;%1&quot; has no counter.</translation>
    </message>
    <message>
        <source>Il contatore della tabella &quot;%1&quot; è esaurito.</source>
        <translation>The counter of the table &quot;%1&quot; is exhausted.</translation>
    </message>
    <message>
        <source>il catalogo non è leggibile</source>
        <translation>the catalogue cannot be read</translation>
    </message>
    <message>
        <source>la pagina %1 non contiene righe</source>
        <translation>page %1 contains no rows</translation>
    </message>
    <message>
        <source>la pagina %1 ha troppe righe</source>
        <translation>page %1 has too many rows</translation>
    </message>
    <message>
        <source>le righe della pagina %1 si sovrappongono</source>
        <translation>the rows of page %1 overlap</translation>
    </message>
    <message>
        <source>la riga %1 della pagina %2 è fuori posto</source>
        <translation>row %1 of page %2 is out of place</translation>
    </message>
    <message>
        <source>la pagina %1 non ha posto</source>
        <translation>page %1 has no room</translation>
    </message>
    <message>
        <source>Password non valida.</source>
        <translation>Invalid password.</translation>
    </message>
    <message>
        <source>il file &quot;%1&quot; è troncato</source>
        <translation>the file &quot;%1&quot; is truncated</translation>
    </message>
    <message>
        <source>La tabella &quot;%1&quot; è collegata a un altro file.</source>
        <translation>The table &quot;%1&quot; is linked to another file.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; è una query, non una tabella.</source>
        <translation>&quot;%1&quot; is a query, not a table.</translation>
    </message>
    <message>
        <source>Impossibile trovare la tabella &quot;%1&quot;.</source>
        <translation>The table &quot;%1&quot; cannot be found.</translation>
    </message>
    <message>
        <source>Nessuna transazione è in corso.</source>
        <translation>No transaction is in progress.</translation>
    </message>
    <message>
        <source>Impossibile scrivere nella cartella di &quot;%1&quot;.</source>
        <translation>The folder of &quot;%1&quot; cannot be written to.</translation>
    </message>
    <message>
        <source>Il file &quot;%1&quot; è in uso da un altro programma.</source>
        <translation>The file &quot;%1&quot; is in use by another program.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; è il database aperto.</source>
        <translation>&quot;%1&quot; is the open database.</translation>
    </message>
    <message>
        <source>la definizione della tabella a pagina %1 è incompleta</source>
        <translation>the table definition on page %1 is incomplete</translation>
    </message>
    <message>
        <source>un nome nella definizione della tabella a pagina %1 non è valido</source>
        <translation>a name in the table definition on page %1 is not valid</translation>
    </message>
    <message>
        <source>la definizione della tabella a pagina %1 ha due campi con il nome &quot;%2&quot;</source>
        <translation>the table definition on page %1 has two fields with the name &quot;%2&quot;</translation>
    </message>
    <message>
        <source>la pagina %1 non è la definizione di una tabella</source>
        <translation>page %1 is not a table definition</translation>
    </message>
    <message>
        <source>la definizione della tabella a pagina %1 non finisce</source>
        <translation>the table definition on page %1 does not end</translation>
    </message>
    <message>
        <source>la definizione della tabella a pagina %1 non è leggibile</source>
        <translation>the table definition on page %1 cannot be read</translation>
    </message>
    <message>
        <source>un campo della tabella a pagina %1 non ha posto nelle righe</source>
        <translation>a field of the table on page %1 has no place in the rows</translation>
    </message>
    <message>
        <source>un indice della tabella a pagina %1 non esiste</source>
        <translation>an index of the table on page %1 does not exist</translation>
    </message>
    <message>
        <source>disco pieno</source>
        <translation>disk full</translation>
    </message>
    <message>
        <source>lo spazio concesso all&apos;utente sul disco è esaurito</source>
        <translation>the user&apos;s disk quota is exhausted</translation>
    </message>
    <message>
        <source>il disco è di sola lettura</source>
        <translation>the disk is read-only</translation>
    </message>
    <message>
        <source>permesso negato</source>
        <translation>permission denied</translation>
    </message>
    <message>
        <source>il disco non riesce a leggere o scrivere</source>
        <translation>the disk cannot read or write</translation>
    </message>
    <message>
        <source>il file supera la dimensione concessa</source>
        <translation>the file exceeds the permitted size</translation>
    </message>
    <message>
        <source>il nome è un collegamento</source>
        <translation>the name is a link</translation>
    </message>
    <message>
        <source>il file esiste già</source>
        <translation>the file already exists</translation>
    </message>
    <message>
        <source>è una cartella</source>
        <translation>it is a folder</translation>
    </message>
    <message>
        <source>il file o la cartella non esiste</source>
        <translation>the file or folder does not exist</translation>
    </message>
    <message>
        <source>il nome è troppo lungo</source>
        <translation>the name is too long</translation>
    </message>
    <message>
        <source>troppi file aperti</source>
        <translation>too many open files</translation>
    </message>
    <message>
        <source>memoria esaurita</source>
        <translation>out of memory</translation>
    </message>
    <message>
        <source>il disco non conosce questa operazione</source>
        <translation>the disk does not support this operation</translation>
    </message>
    <message>
        <source>il disco non è più raggiungibile</source>
        <translation>the disk can no longer be reached</translation>
    </message>
    <message>
        <source>il file è in uso</source>
        <translation>the file is in use</translation>
    </message>
    <message>
        <source>errore di sistema %1</source>
        <translation>system error %1</translation>
    </message>
    <message>
        <source>Errore del disco (%1) sul file &quot;%2&quot;: %3.</source>
        <translation>Disk error (%1) on the file &quot;%2&quot;: %3.</translation>
    </message>
    <message>
        <source>Impossibile trovare il file &quot;%1&quot;.</source>
        <translation>The file &quot;%1&quot; cannot be found.</translation>
    </message>
    <message>
        <source>Impossibile aprire il file &quot;%1&quot;: %2.</source>
        <translation>The file &quot;%1&quot; cannot be opened: %2.</translation>
    </message>
    <message>
        <source>le tabelle nuove sono descritte male</source>
        <translation>the new tables are described wrongly</translation>
    </message>
    <message>
        <source>le tabelle nuove sono troppe</source>
        <translation>there are too many new tables</translation>
    </message>
    <message>
        <source>una tabella nuova ha troppe colonne</source>
        <translation>a new table has too many columns</translation>
    </message>
    <message>
        <source>un nome non ha chiave</source>
        <translation>a name has no key</translation>
    </message>
    <message>
        <source>Il file &quot;%1&quot; esiste già.</source>
        <translation>The file &quot;%1&quot; already exists.</translation>
    </message>
    <message>
        <source>Il database è danneggiato: %1.</source>
        <translation>The database is damaged: %1.</translation>
    </message>
    <message>
        <source>Errore interno del database: %1.</source>
        <translation>Internal error of the database: %1.</translation>
    </message>
    <message>
        <source>Il database ha raggiunto la dimensione massima di 2 GB.</source>
        <translation>The database has reached the maximum size of 2 GB.</translation>
    </message>
    <message>
        <source>Il database &quot;%1&quot; è in uso da un altro programma.</source>
        <translation>The database &quot;%1&quot; is in use by another program.</translation>
    </message>
    <message>
        <source>Il database &quot;%1&quot; è aperto in un altro programma (%2): non può essere modificato.</source>
        <translation>The database &quot;%1&quot; is open in another program (%2): it cannot be changed.</translation>
    </message>
    <message>
        <source>Formato di database non riconosciuto: %1.</source>
        <translation>Unknown database format: %1.</translation>
    </message>
    <message>
        <source>il file non è un database Jet</source>
        <translation>the file is not a Jet database</translation>
    </message>
    <message>
        <source>è un file .accdb di Access 2007 o successivo; salvarlo in formato Access 2000-2003 (.mdb)</source>
        <translation>it is an .accdb file of Access 2007 or later; save it in the format Access 2000-2003 (.mdb)</translation>
    </message>
    <message>
        <source>è di una versione più recente di Access 2003</source>
        <translation>it is of a later version than Access 2003</translation>
    </message>
    <message>
        <source>il file è troncato</source>
        <translation>the file is truncated</translation>
    </message>
    <message>
        <source>è un file di Access 97 con una tabella codici diversa da quella occidentale (1252)</source>
        <translation>it is an Access 97 file with a code page other than the Western one (1252)</translation>
    </message>
    <message>
        <source>la pagina di indice %1 non è leggibile</source>
        <translation>index page %1 cannot be read</translation>
    </message>
    <message>
        <source>la pagina di indice %1 è troppo piena</source>
        <translation>index page %1 is too full</translation>
    </message>
    <message>
        <source>la pagina di indice %1 non ha un ultimo ramo</source>
        <translation>index page %1 has no last branch</translation>
    </message>
    <message>
        <source>un indice di &quot;%1&quot; gira in tondo</source>
        <translation>an index of &quot;%1&quot; runs in a circle</translation>
    </message>
    <message>
        <source>un indice di &quot;%1&quot; contiene già la riga</source>
        <translation>an index of &quot;%1&quot; already contains the row</translation>
    </message>
    <message>
        <source>Le voci di un indice del database sono troppo lunghe per essere divise.</source>
        <translation>The entries of an index of the database are too long to be split.</translation>
    </message>
    <message>
        <source>la definizione di una tabella è incompleta</source>
        <translation>a table definition is incomplete</translation>
    </message>
    <message>
        <source>Il file &quot;%1&quot; non è un giornale di questo database: è un collegamento o appartiene a chi non può scrivere il database. Il database non viene aperto finché il file resta al suo posto.</source>
        <translation>The file &quot;%1&quot; is not a journal of this database: it is a link, or belongs to somebody who cannot write the database. The database is not opened while the file stays in its place.</translation>
    </message>
    <message>
        <source>Troppi file &quot;%1&quot;.</source>
        <translation>Too many files &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Accanto al database c&apos;era un giornale di modifiche interrotte che non gli appartiene. Il database resta com&apos;è; il giornale è stato messo da parte come &quot;%1&quot;.</source>
        <translation>Beside the database there was a journal of interrupted changes that does not belong to it. The database stays as it is; the journal was set aside as &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>lettura</source>
        <translation>reading</translation>
    </message>
    <message>
        <source>un indice di &quot;%1&quot; nomina un campo che non c&apos;è</source>
        <translation>an index of &quot;%1&quot; names a field that is not there</translation>
    </message>
    <message>
        <source>un valore del campo &quot;%1&quot; è troppo corto</source>
        <translation>a value of the field &quot;%1&quot; is too short</translation>
    </message>
    <message>
        <source>il campo &quot;%1&quot; non ha l&apos;ordinamento generale</source>
        <translation>the field &quot;%1&quot; does not have the general sort order</translation>
    </message>
    <message>
        <source>il tipo del campo &quot;%1&quot; non è adatto a un indice</source>
        <translation>the type of the field &quot;%1&quot; is not fit for an index</translation>
    </message>
    <message>
        <source>non è su alcun campo</source>
        <translation>it is on no field</translation>
    </message>
    <message>
        <source>Il testo del campo &quot;%1&quot; contiene il carattere %2, che non può stare nell&apos;indice &quot;%3&quot;.</source>
        <translation>The text of the field &quot;%1&quot; contains the character %2, which cannot be in the index &quot;%3&quot;.</translation>
    </message>
    <message>
        <source>I valori sono troppo lunghi per l&apos;indice &quot;%1&quot;.</source>
        <translation>The values are too long for the index &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>un campo memo non è leggibile</source>
        <translation>a memo field cannot be read</translation>
    </message>
    <message>
        <source>Il database non ha posto per i testi lunghi di un campo memo.</source>
        <translation>The database has no room for the long texts of a memo field.</translation>
    </message>
    <message>
        <source>scrittura</source>
        <translation>writing</translation>
    </message>
    <message>
        <source>creazione</source>
        <translation>creating</translation>
    </message>
    <message>
        <source>&quot;%1&quot; non è un file.</source>
        <translation>&quot;%1&quot; is not a file.</translation>
    </message>
    <message>
        <source>accorciamento</source>
        <translation>shortening</translation>
    </message>
    <message>
        <source>prenotazione</source>
        <translation>reserving</translation>
    </message>
    <message>
        <source>sincronizzazione</source>
        <translation>synchronizing</translation>
    </message>
    <message>
        <source>Il file &quot;%1&quot; può essere letto o scritto da chi non può farlo con &quot;%2&quot;.</source>
        <translation>The file &quot;%1&quot; can be read or written by those who cannot do so with &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>blocco</source>
        <translation>locking</translation>
    </message>
    <message>
        <source>cancellazione</source>
        <translation>deleting</translation>
    </message>
    <message>
        <source>cambio di nome</source>
        <translation>renaming</translation>
    </message>
    <message>
        <source>%1 Accanto è rimasto il giornale delle sue ultime modifiche, &quot;%2&quot;, che viene conservato: rimettere il file al suo posto.</source>
        <translation>%1 The journal of its latest changes, &quot;%2&quot;, was left beside it and is kept: put the file back in its place.</translation>
    </message>
    <message>
        <source>Il file &quot;%1&quot; supera la dimensione massima di un database, 2 GB.</source>
        <translation>The file &quot;%1&quot; exceeds the maximum size of a database, 2 GB.</translation>
    </message>
    <message>
        <source>la lunghezza del file non è quella di un database</source>
        <translation>the length of the file is not that of a database</translation>
    </message>
    <message>
        <source>manca la pagina %1</source>
        <translation>page %1 is missing</translation>
    </message>
    <message>
        <source>la pagina %1 è troncata</source>
        <translation>page %1 is truncated</translation>
    </message>
    <message>
        <source>Il database &quot;%1&quot; è di Access 97: può essere letto ma non modificato. Per modificarlo convertirlo in formato Access 2000-2003 (.mdb).</source>
        <translation>The database &quot;%1&quot; is of Access 97: it can be read but not changed. To change it, convert it to the format Access 2000-2003 (.mdb).</translation>
    </message>
    <message>
        <source>Il database &quot;%1&quot; è di sola lettura.</source>
        <translation>The database &quot;%1&quot; is read-only.</translation>
    </message>
    <message>
        <source>Una transazione è già in corso.</source>
        <translation>A transaction is already in progress.</translation>
    </message>
    <message>
        <source>Il database &quot;%1&quot; viene sostituito di continuo da un altro programma.</source>
        <translation>The database &quot;%1&quot; keeps being replaced by another program.</translation>
    </message>
    <message>
        <source>Il database &quot;%1&quot; va ripristinato dopo un&apos;interruzione, ma non può essere scritto.</source>
        <translation>The database &quot;%1&quot; has to be restored after an interruption, but cannot be written.</translation>
    </message>
    <message>
        <source>Il database &quot;%1&quot; è stato sostituito o cancellato: la modifica non è stata fatta.</source>
        <translation>The database &quot;%1&quot; was replaced or deleted: the change was not made.</translation>
    </message>
    <message>
        <source>la pagina %1 è fra quelle libere di una tabella a cui non appartiene</source>
        <translation>page %1 is among the free pages of a table to which it does not belong</translation>
    </message>
    <message>
        <source>una riga di &quot;%1&quot; non è leggibile</source>
        <translation>a row of &quot;%1&quot; cannot be read</translation>
    </message>
    <message>
        <source>Il record è troppo grande per la tabella &quot;%1&quot; (%2 byte; al massimo %3).</source>
        <translation>The record is too large for the table &quot;%1&quot; (%2 bytes; at most %3).</translation>
    </message>
    <message>
        <source>la pagina %1 non appartiene alla tabella &quot;%2&quot;</source>
        <translation>page %1 does not belong to the table &quot;%2&quot;</translation>
    </message>
    <message>
        <source>la riga %1 della pagina %2 non dice dove è</source>
        <translation>row %1 of page %2 does not say where it is</translation>
    </message>
    <message>
        <source>la riga %1 della pagina %2 si è persa</source>
        <translation>row %1 of page %2 is lost</translation>
    </message>
    <message>
        <source>una riga di &quot;%1&quot; è sparita</source>
        <translation>a row of &quot;%1&quot; has disappeared</translation>
    </message>
    <message>
        <source>la pagina %1 è in uso ed è segnata come libera</source>
        <translation>page %1 is in use and is marked as free</translation>
    </message>
    <message>
        <source>un indice gira in tondo</source>
        <translation>an index runs in a circle</translation>
    </message>
    <message>
        <source>La struttura della tabella &quot;%1&quot; è stata cambiata da un altro programma.</source>
        <translation>The structure of the table &quot;%1&quot; was changed by another program.</translation>
    </message>
    <message>
        <source>La tabella &quot;%1&quot; non ha una chiave primaria numerica.</source>
        <translation>The table &quot;%1&quot; has no numeric primary key.</translation>
    </message>
    <message>
        <source>nell&apos;indice &quot;%1&quot; manca una riga</source>
        <translation>a row is missing in the index &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Il numero dei valori non è quello dei campi della tabella &quot;%1&quot;.</source>
        <translation>The number of values is not that of the fields of the table &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>il campo &quot;%1&quot; è un contatore</source>
        <translation>the field &quot;%1&quot; is a counter</translation>
    </message>
    <message>
        <source>la mappa delle pagine %1/%2 non è leggibile</source>
        <translation>the page map %1/%2 cannot be read</translation>
    </message>
    <message>
        <source>la mappa delle pagine %1/%2 comincia oltre il file</source>
        <translation>the page map %1/%2 begins beyond the file</translation>
    </message>
    <message>
        <source>la pagina %1 non è una mappa</source>
        <translation>page %1 is not a map</translation>
    </message>
    <message>
        <source>Una mappa delle pagine del database non può crescere oltre.</source>
        <translation>A page map of the database cannot grow any further.</translation>
    </message>
    <message>
        <source>Il numero è troppo grande per il campo &quot;%1&quot;.</source>
        <translation>The number is too large for the field &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Il campo &quot;%1&quot; è troppo piccolo per il testo (al massimo %2 caratteri).</source>
        <translation>The field &quot;%1&quot; is too small for the text (at most %2 characters).</translation>
    </message>
    <message>
        <source>Il testo del campo &quot;%1&quot; contiene caratteri che il database non può conservare.</source>
        <translation>The text of the field &quot;%1&quot; contains characters that the database cannot keep.</translation>
    </message>
    <message>
        <source>Il campo &quot;%1&quot; non può contenere %2 byte.</source>
        <translation>The field &quot;%1&quot; cannot contain %2 bytes.</translation>
    </message>
    <message>
        <source>contiene un oggetto OLE</source>
        <translation>contains an OLE object</translation>
    </message>
    <message>
        <source>è un testo di lunghezza fissa</source>
        <translation>is a text of fixed length</translation>
    </message>
    <message>
        <source>è di un tipo sconosciuto (%1)</source>
        <translation>is of an unknown type (%1)</translation>
    </message>
    <message>
        <source>Il campo &quot;%1&quot; %2: non può essere modificato.</source>
        <translation>The field &quot;%1&quot; %2: it cannot be changed.</translation>
    </message>
    <message>
        <source>l&apos;indice &quot;%1&quot; (%2) non può essere aggiornato, perché %3</source>
        <translation>the index &quot;%1&quot; (%2) cannot be updated, because %3</translation>
    </message>
    <message>
        <source>le sue voci non corrispondono alle righe della tabella</source>
        <translation>its entries do not match the rows of the table</translation>
    </message>
    <message>
        <source>la forma delle sue chiavi decrescenti non è certa</source>
        <translation>the form of its descending keys is not certain</translation>
    </message>
    <message>
        <source>La tabella &quot;%1&quot; non può essere modificata: %2.</source>
        <translation>The table &quot;%1&quot; cannot be changed: %2.</translation>
    </message>
    <message>
        <source>è una tabella di sistema</source>
        <translation>it is a system table</translation>
    </message>
    <message>
        <source>ha una relazione con un&apos;altra tabella</source>
        <translation>it has a relationship with another table</translation>
    </message>
    <message>
        <source>il campo &quot;%1&quot; %2</source>
        <translation>the field &quot;%1&quot; %2</translation>
    </message>
    <message>
        <source>il campo &quot;%1&quot; è un contatore di tipo GUID</source>
        <translation>the field &quot;%1&quot; is a counter of type GUID</translation>
    </message>
    <message>
        <source>Il campo &quot;%1&quot; deve contenere un valore.</source>
        <translation>The field &quot;%1&quot; must contain a value.</translation>
    </message>
    <message>
        <source>Il campo &quot;%1&quot; non può contenere un testo vuoto.</source>
        <translation>The field &quot;%1&quot; cannot contain an empty text.</translation>
    </message>
    <message>
        <source>I campi dell&apos;indice &quot;%1&quot; (%2) devono contenere un valore.</source>
        <translation>The fields of the index &quot;%1&quot; (%2) must contain a value.</translation>
    </message>
    <message>
        <source>Il valore di &quot;%1&quot; esiste già e l&apos;indice &quot;%2&quot; non ammette duplicati.</source>
        <translation>The value of &quot;%1&quot; already exists and the index &quot;%2&quot; does not allow duplicates.</translation>
    </message>
</context>
</TS>
