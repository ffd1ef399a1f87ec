<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="it">
<context>
    <name>Vestrola</name>
    <message>
        <source>Il nome di questo file contiene caratteri sconosciuti, rinominalo:<byte value="xd"/>
%1</source>
        <translation>Le nom de ce fichier contient des caractères inconnus, renommez-le&#xa0;:<byte value="xd"/>
%1</translation>
    </message>
    <message>
        <source>La cartella del programma si trova su un disco che non conserva i permessi dei file.<byte value="xd"/>
Chi può leggere il disco può leggere anche i destinatari e le password degli account.</source>
        <translation>Le dossier du programme se trouve sur un disque qui ne conserve pas les droits des fichiers.<byte value="xd"/>
Qui peut lire le disque peut lire aussi les destinataires et les mots de passe des comptes.</translation>
    </message>
    <message>
        <source>Scrivere di nuovo la password.</source>
        <translation>Saisissez à nouveau le mot de passe.</translation>
    </message>
    <message>
        <source>La password non è nota.</source>
        <translation>Le mot de passe n&apos;est pas connu.</translation>
    </message>
    <message>
        <source>La password ha caratteri che il file degli account non può contenere.</source>
        <translation>Le mot de passe contient des caractères que le fichier des comptes n&apos;accepte pas.</translation>
    </message>
    <message>
        <source>Resta nel portachiavi.</source>
        <translation>Il reste dans le trousseau.</translation>
    </message>
    <message>
        <source>Senza la spunta la password resta nel file degli account.</source>
        <translation>Sans la coche, le mot de passe reste dans le fichier des comptes.</translation>
    </message>
    <message>
        <source>Overflow</source>
        <translation>Dépassement de capacité</translation>
    </message>
    <message>
        <source>Indice non compreso nell&apos;intervallo</source>
        <translation>Indice hors limites</translation>
    </message>
    <message>
        <source>Tipo non corrispondente</source>
        <translation>Type incompatible</translation>
    </message>
    <message>
        <source>Impossibile trovare il file</source>
        <translation>Fichier introuvable</translation>
    </message>
    <message>
        <source>Errore di I/O del dispositivo</source>
        <translation>Erreur d&apos;E/S du périphérique</translation>
    </message>
    <message>
        <source>Input oltre la fine del file</source>
        <translation>Lecture au-delà de la fin du fichier</translation>
    </message>
    <message>
        <source>Errore di accesso al percorso/file</source>
        <translation>Erreur d&apos;accès au chemin ou au fichier</translation>
    </message>
    <message>
        <source>Uso non valido di Null</source>
        <translation>Utilisation incorrecte de Null</translation>
    </message>
    <message>
        <source>Nessun record corrente</source>
        <translation>Aucun enregistrement en cours</translation>
    </message>
    <message>
        <source>Elemento non trovato nell&apos;insieme</source>
        <translation>Élément absent de la collection</translation>
    </message>
    <message>
        <source>È stato scelto Annulla</source>
        <translation>Annuler a été choisi</translation>
    </message>
    <message>
        <source>Errore del programma</source>
        <translation>Erreur du programme</translation>
    </message>
    <message>
        <source>Riga %1: il campo %2 non c&apos;è; %3</source>
        <translation>Ligne %1&#xa0;: le champ %2 manque&#xa0;; %3</translation>
    </message>
    <message numerus="yes">
        <source>inseriti %n destinatari</source>
        <translation>
            <numerusform>%n destinataire ajouté</numerusform>
            <numerusform>%n destinataires ajoutés</numerusform>
        </translation>
    </message>
    <message>
        <source>Manca l&apos;indirizzo</source>
        <translation>L&apos;adresse manque</translation>
    </message>
    <message>
        <source>Nell&apos;indirizzo manca &quot;@&quot;</source>
        <translation>Il manque «&#xa0;@&#xa0;» dans l&apos;adresse</translation>
    </message>
    <message>
        <source>Nell&apos;indirizzo manca il nome prima di &quot;@&quot;</source>
        <translation>Il manque le nom avant «&#xa0;@&#xa0;» dans l&apos;adresse</translation>
    </message>
    <message>
        <source>Nell&apos;indirizzo manca il dominio dopo &quot;@&quot;</source>
        <translation>Il manque le domaine après «&#xa0;@&#xa0;» dans l&apos;adresse</translation>
    </message>
    <message>
        <source>L&apos;ultima parte dell&apos;indirizzo ha più di quattro caratteri</source>
        <translation>La dernière partie de l&apos;adresse a plus de quatre caractères</translation>
    </message>
    <message>
        <source>L&apos;indirizzo non è valido</source>
        <translation>L&apos;adresse n&apos;est pas valide</translation>
    </message>
    <message>
        <source>Destinatario numero %1: già servito, ma la sua riga non ha più quell&apos;indirizzo. Resta com&apos;è.</source>
        <translation>Destinataire numéro %1&#xa0;: déjà servi, mais sa ligne n&apos;a plus cette adresse. Elle reste telle quelle.</translation>
    </message>
    <message>
        <source>cartelle perdute</source>
        <translation>dossiers perdus</translation>
    </message>
    <message numerus="yes">
        <source>altre %n cartelle</source>
        <translation>
            <numerusform>%n autre dossier</numerusform>
            <numerusform>%n autres dossiers</numerusform>
        </translation>
    </message>
    <message>
        <source>Il registro di questo invio non c&apos;è più.</source>
        <translation>Le journal de cet envoi n&apos;existe plus.</translation>
    </message>
    <message>
        <source>Il registro di questo invio è troppo grande per essere letto.</source>
        <translation>Le journal de cet envoi est trop gros pour être lu.</translation>
    </message>
    <message>
        <source>Il registro di questo invio non si può leggere. %1</source>
        <translation>Impossible de lire le journal de cet envoi. %1</translation>
    </message>
    <message>
        <source>La cartella &quot;%1&quot; non si può scrivere.</source>
        <translation>Impossible d&apos;écrire dans le dossier «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Data e ora</source>
        <translation>Date et heure</translation>
    </message>
    <message>
        <source>Indirizzo</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Esito</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>Motivo</source>
        <translation>Motif</translation>
    </message>
    <message>
        <source>Codice</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Stato</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Risposta del server</source>
        <translation>Réponse du serveur</translation>
    </message>
    <message>
        <source>Casella o indirizzo inesistente</source>
        <translation>Boîte ou adresse inexistante</translation>
    </message>
    <message>
        <source>Casella disattivata</source>
        <translation>Boîte désactivée</translation>
    </message>
    <message>
        <source>Casella piena</source>
        <translation>Boîte pleine</translation>
    </message>
    <message>
        <source>Regole del server: spam, blocchi o limiti</source>
        <translation>Règles du serveur&#xa0;: spam, blocages ou limites</translation>
    </message>
    <message>
        <source>Mittente non accettato</source>
        <translation>Expéditeur refusé</translation>
    </message>
    <message>
        <source>Accesso all&apos;account non riuscito</source>
        <translation>Connexion au compte impossible</translation>
    </message>
    <message>
        <source>Tempo scaduto senza risposta</source>
        <translation>Délai dépassé sans réponse</translation>
    </message>
    <message>
        <source>Nessun server di posta per il dominio</source>
        <translation>Aucun serveur de messagerie pour le domaine</translation>
    </message>
    <message>
        <source>Server non raggiunto</source>
        <translation>Serveur injoignable</translation>
    </message>
    <message>
        <source>Connessione caduta o risposta non valida</source>
        <translation>Connexion perdue ou réponse non valide</translation>
    </message>
    <message>
        <source>Messaggio troppo grande</source>
        <translation>Message trop volumineux</translation>
    </message>
    <message>
        <source>Rifiuto temporaneo: riprovare più tardi</source>
        <translation>Refus temporaire&#xa0;: réessayez plus tard</translation>
    </message>
    <message>
        <source>Invio fermato</source>
        <translation>Envoi arrêté</translation>
    </message>
    <message>
        <source>Non spedito dal programma</source>
        <translation>Non envoyé par le programme</translation>
    </message>
    <message>
        <source>Altro rifiuto del server</source>
        <translation>Autre refus du serveur</translation>
    </message>
    <message>
        <source>Consegnato</source>
        <translation>Remis</translation>
    </message>
    <message>
        <source>Rifiutato</source>
        <translation>Refusé</translation>
    </message>
    <message>
        <source>Senza risposta</source>
        <translation>Sans réponse</translation>
    </message>
    <message>
        <source>Non spedito</source>
        <translation>Non envoyé</translation>
    </message>
    <message>
        <source>Ricerca del server di posta non riuscita per un problema temporaneo: %1.</source>
        <translation>La recherche du serveur de messagerie a échoué pour une raison temporaire&#xa0;: %1.</translation>
    </message>
    <message>
        <source>La risposta del DNS sul dominio del destinatario non si può usare: %1.</source>
        <translation>La réponse du DNS sur le domaine du destinataire est inutilisable&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Il dominio del destinatario non ha un server di posta: %1.</source>
        <translation>Le domaine du destinataire n&apos;a pas de serveur de messagerie&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Su questo computer non è configurato un server DNS.</source>
        <translation>Aucun serveur DNS n&apos;est configuré sur cet ordinateur.</translation>
    </message>
    <message>
        <source>Il dominio del destinatario non è valido.</source>
        <translation>Le domaine du destinataire n&apos;est pas valide.</translation>
    </message>
    <message>
        <source>il server DNS non si può interrogare</source>
        <translation>le serveur DNS ne peut pas être interrogé</translation>
    </message>
    <message>
        <source>il server DNS non ha risposto in tempo</source>
        <translation>le serveur DNS n&apos;a pas répondu à temps</translation>
    </message>
    <message>
        <source>il server DNS segnala un errore (SERVFAIL)</source>
        <translation>le serveur DNS signale une erreur (SERVFAIL)</translation>
    </message>
    <message>
        <source>il server DNS rifiuta la domanda (REFUSED)</source>
        <translation>le serveur DNS refuse la requête (REFUSED)</translation>
    </message>
    <message>
        <source>è troncata</source>
        <translation>elle est tronquée</translation>
    </message>
    <message>
        <source>comincia con un alias (CNAME)</source>
        <translation>elle commence par un alias (CNAME)</translation>
    </message>
    <message>
        <source>i suoi nomi non sono compressi</source>
        <translation>ses noms ne sont pas compressés</translation>
    </message>
    <message>
        <source>ha un&apos;altra forma</source>
        <translation>elle a une autre forme</translation>
    </message>
    <message>
        <source>Il dominio del destinatario non accetta posta (null MX).</source>
        <translation>Le domaine du destinataire n&apos;accepte pas de courrier (null MX).</translation>
    </message>
    <message>
        <source>non esiste (NXDOMAIN)</source>
        <translation>il n&apos;existe pas (NXDOMAIN)</translation>
    </message>
    <message>
        <source>il DNS non ne indica</source>
        <translation>le DNS n&apos;en indique aucun</translation>
    </message>
    <message>
        <source>Il file pathDBase.utf8, con il percorso del database, è danneggiato.<byte value="xd"/>
È stato messo da parte con il nome pathDBase.utf8.guasto.</source>
        <translation>Le fichier pathDBase.utf8, avec le chemin de la base de données, est endommagé.<byte value="xd"/>
Il a été mis de côté sous le nom pathDBase.utf8.guasto.</translation>
    </message>
    <message>
        <source>La tabella dei destinatari non ha la colonna &quot;id_grp&quot;.</source>
        <translation>La table des destinataires n&apos;a pas de colonne «&#xa0;id_grp&#xa0;».</translation>
    </message>
    <message>
        <source>La cartella che la contiene non c&apos;è</source>
        <translation>Le dossier qui le contient manque</translation>
    </message>
    <message>
        <source>Sta dentro &quot;%1&quot;, perduta anch&apos;essa</source>
        <translation>Dans «&#xa0;%1&#xa0;», perdu lui aussi</translation>
    </message>
    <message>
        <source>(cartella %1)</source>
        <translation>(dossier %1)</translation>
    </message>
    <message>
        <source>La cartella dei destinatari non c&apos;è</source>
        <translation>Le dossier des destinataires manque</translation>
    </message>
    <message>
        <source>(nessuna cartella)</source>
        <translation>(aucun dossier)</translation>
    </message>
    <message>
        <source>I destinatari non hanno una cartella</source>
        <translation>Les destinataires n&apos;ont pas de dossier</translation>
    </message>
    <message>
        <source>Indirizzo dell&apos;account</source>
        <translation>Adresse du compte</translation>
    </message>
    <message>
        <source>L&apos;indirizzo email dell&apos;account non è valido: correggerlo nella finestra degli account.</source>
        <translation>L&apos;adresse e-mail du compte n&apos;est pas valide&#xa0;: corrigez-la dans la fenêtre des comptes.</translation>
    </message>
    <message>
        <source>Posta in arrivo (MX)</source>
        <translation>Courrier entrant (MX)</translation>
    </message>
    <message>
        <source>Indirizzo del dominio (A)</source>
        <translation>Adresse du domaine (A)</translation>
    </message>
    <message>
        <source>Nome inverso di questo computer</source>
        <translation>Nom inverse de cet ordinateur</translation>
    </message>
    <message>
        <source>Firma DKIM</source>
        <translation>Signature DKIM</translation>
    </message>
    <message>
        <source>Il DNS è troppo lento o porta troppo lontano: riprovare più tardi.</source>
        <translation>Le DNS est trop lent ou mène trop loin&#xa0;: réessayez plus tard.</translation>
    </message>
    <message>
        <source>Il dominio non esiste nel DNS: correggere l&apos;indirizzo dell&apos;account o registrare il dominio.</source>
        <translation>Le domaine n&apos;existe pas dans le DNS&#xa0;: corrigez l&apos;adresse du compte ou enregistrez le domaine.</translation>
    </message>
    <message>
        <source>Il dominio non ha un record MX: pubblicarne uno, perché risposte e avvisi di mancata consegna arrivino.</source>
        <translation>Le domaine n&apos;a pas d&apos;enregistrement MX&#xa0;: publiez-en un pour que les réponses et les avis de non-remise arrivent.</translation>
    </message>
    <message>
        <source>nessun indirizzo</source>
        <translation>aucune adresse</translation>
    </message>
    <message>
        <source>Il dominio dichiara di non ricevere posta (MX nullo): molti server rifiutano i messaggi di un mittente a cui non si può rispondere.</source>
        <translation>Le domaine déclare ne pas recevoir de courrier (MX nul)&#xa0;: beaucoup de serveurs refusent les messages d&apos;un expéditeur à qui l&apos;on ne peut répondre.</translation>
    </message>
    <message>
        <source>Nessun server del record MX ha un indirizzo: correggere il record.</source>
        <translation>Aucun serveur de l&apos;enregistrement MX n&apos;a d&apos;adresse&#xa0;: corrigez l&apos;enregistrement.</translation>
    </message>
    <message>
        <source>Il dominio riceve posta.</source>
        <translation>Le domaine reçoit du courrier.</translation>
    </message>
    <message>
        <source>Il dominio ha un indirizzo.</source>
        <translation>Le domaine a une adresse.</translation>
    </message>
    <message>
        <source>Il dominio non ha un indirizzo suo, e non gli serve: ha un record MX.</source>
        <translation>Le domaine n&apos;a pas d&apos;adresse propre et n&apos;en a pas besoin&#xa0;: il a un enregistrement MX.</translation>
    </message>
    <message>
        <source>Il dominio non ha né un record MX né un indirizzo: molti server rifiutano i suoi messaggi; pubblicare un record MX.</source>
        <translation>Le domaine n&apos;a ni enregistrement MX ni adresse&#xa0;: beaucoup de serveurs refusent ses messages&#xa0;; publiez un enregistrement MX.</translation>
    </message>
    <message>
        <source>L&apos;indirizzo pubblico di questo computer non si può conoscere da qui: verificare con il fornitore di rete che abbia un nome inverso.</source>
        <translation>L&apos;adresse publique de cet ordinateur n&apos;est pas connue d&apos;ici&#xa0;: vérifiez avec le fournisseur d&apos;accès qu&apos;elle a un nom inverse.</translation>
    </message>
    <message>
        <source>nessun nome</source>
        <translation>aucun nom</translation>
    </message>
    <message>
        <source>, che non riporta a questo indirizzo</source>
        <translation>, qui ne ramène pas à cette adresse</translation>
    </message>
    <message>
        <source>Nome e indirizzo si confermano.</source>
        <translation>Le nom et l&apos;adresse se confirment.</translation>
    </message>
    <message>
        <source>Chiedere al fornitore di rete un nome inverso che riporti allo stesso indirizzo: senza, molti server rifiutano l&apos;invio diretto.</source>
        <translation>Demandez au fournisseur d&apos;accès un nom inverse qui ramène à la même adresse&#xa0;: sans lui, beaucoup de serveurs refusent l&apos;envoi direct.</translation>
    </message>
    <message>
        <source>Il record dichiara la chiave ritirata (p= vuoto): pubblicare quella nuova.</source>
        <translation>L&apos;enregistrement déclare la clé retirée (p= vide)&#xa0;: publiez la nouvelle.</translation>
    </message>
    <message>
        <source>Il record pubblicato è di un&apos;altra chiave, e le firme non valgono: pubblicare il record della chiave di questo programma.</source>
        <translation>L&apos;enregistrement publié est celui d&apos;une autre clé, et les signatures ne sont pas valables&#xa0;: publiez l&apos;enregistrement de la clé de ce programme.</translation>
    </message>
    <message>
        <source>Il record non ammette SHA-256: togliere il campo h=.</source>
        <translation>L&apos;enregistrement n&apos;admet pas SHA-256&#xa0;: retirez le champ h=.</translation>
    </message>
    <message>
        <source>Il record non vale per la posta: togliere il campo s=.</source>
        <translation>L&apos;enregistrement ne vaut pas pour le courrier&#xa0;: retirez le champ s=.</translation>
    </message>
    <message>
        <source>stretto</source>
        <translation>strict</translation>
    </message>
    <message>
        <source>rilassato</source>
        <translation>souple</translation>
    </message>
    <message>
        <source>allineato</source>
        <translation>aligné</translation>
    </message>
    <message>
        <source>non allineato</source>
        <translation>non aligné</translation>
    </message>
    <message>
        <source>Record di %1, p=%2 per questo dominio, %3 % dei messaggi</source>
        <translation>Enregistrement de %1, p=%2 pour ce domaine, %3 % des messages</translation>
    </message>
    <message>
        <source>SPF: %1 (%2)</source>
        <translation>SPF&#xa0;: %1 (%2)</translation>
    </message>
    <message>
        <source>non si può sapere</source>
        <translation>inconnu</translation>
    </message>
    <message>
        <source>passa</source>
        <translation>passe</translation>
    </message>
    <message>
        <source>non passa</source>
        <translation>ne passe pas</translation>
    </message>
    <message>
        <source>DKIM: %1 (%2)</source>
        <translation>DKIM&#xa0;: %1 (%2)</translation>
    </message>
    <message>
        <source>Nessun rapporto richiesto</source>
        <translation>Aucun rapport demandé</translation>
    </message>
    <message>
        <source>Rapporti a %1</source>
        <translation>Rapports à %1</translation>
    </message>
    <message>
        <source>Con p=%1 i messaggi sono %2, perché non passano né SPF né DKIM: correggere prima quelle righe.</source>
        <translation>Avec p=%1, les messages sont %2, car ni SPF ni DKIM ne passent&#xa0;: corrigez d&apos;abord ces lignes.</translation>
    </message>
    <message>
        <source>rifiutati</source>
        <translation>refusés</translation>
    </message>
    <message>
        <source>messi fra la posta indesiderata</source>
        <translation>mis dans le courrier indésirable</translation>
    </message>
    <message>
        <source>Se SPF passa non si può sapere da qui: firmare con DKIM, perché DMARC passi in ogni caso.</source>
        <translation>On ne peut savoir d&apos;ici si SPF passe&#xa0;: signez avec DKIM pour que DMARC passe dans tous les cas.</translation>
    </message>
    <message>
        <source>Il record osserva soltanto, e per ora non passano né SPF né DKIM: correggere quelle righe.</source>
        <translation>L&apos;enregistrement ne fait qu&apos;observer, et pour l&apos;instant ni SPF ni DKIM ne passent&#xa0;: corrigez ces lignes.</translation>
    </message>
    <message>
        <source>Il record osserva soltanto (p=none): quando i rapporti sono buoni, passare a p=quarantine.</source>
        <translation>L&apos;enregistrement ne fait qu&apos;observer (p=none)&#xa0;: quand les rapports sont bons, passez à p=quarantine.</translation>
    </message>
    <message>
        <source>Il record protegge il dominio, e i messaggi lo rispettano.</source>
        <translation>L&apos;enregistrement protège le domaine, et les messages le respectent.</translation>
    </message>
    <message>
        <source>I messaggi partono senza firma: creare una chiave DKIM e pubblicarne il record.</source>
        <translation>Les messages partent sans signature&#xa0;: créez une clé DKIM et publiez son enregistrement.</translation>
    </message>
    <message>
        <source>Il programma non firma i messaggi: se non lo fa il server del fornitore, creare una chiave DKIM e pubblicarne il record.</source>
        <translation>Le programme ne signe pas les messages&#xa0;: si le serveur du fournisseur ne le fait pas, créez une clé DKIM et publiez son enregistrement.</translation>
    </message>
    <message>
        <source>Il record della chiave manca: pubblicarlo con il nome %1.</source>
        <translation>L&apos;enregistrement de la clé manque&#xa0;: publiez-le sous le nom %1.</translation>
    </message>
    <message>
        <source>Allo stesso nome ci sono più record: lasciarne uno solo.</source>
        <translation>Il y a plusieurs enregistrements du même nom&#xa0;: n&apos;en laissez qu&apos;un.</translation>
    </message>
    <message>
        <source>Il record non è una chiave DKIM valida: copiarlo di nuovo, intero.</source>
        <translation>L&apos;enregistrement n&apos;est pas une clé DKIM valide&#xa0;: copiez-le à nouveau, en entier.</translation>
    </message>
    <message>
        <source>La chiave è pubblicata in prova (t=y): togliere il campo quando tutto funziona.</source>
        <translation>La clé est publiée à l&apos;essai (t=y)&#xa0;: retirez le champ quand tout fonctionne.</translation>
    </message>
    <message>
        <source>La chiave pubblicata è quella con cui il programma firma.</source>
        <translation>La clé publiée est celle avec laquelle le programme signe.</translation>
    </message>
    <message>
        <source>Pubblicare un record DMARC con il nome %1, per esempio &quot;v=DMARC1; p=none; rua=mailto:%2&quot;.</source>
        <translation>Publiez un enregistrement DMARC sous le nom %1, par exemple &quot;v=DMARC1; p=none; rua=mailto:%2&quot;.</translation>
    </message>
    <message>
        <source>%1 ha più di un record DMARC e nessuno vale: lasciarne uno solo.</source>
        <translation>%1 a plus d&apos;un enregistrement DMARC et aucun ne vaut&#xa0;: n&apos;en laissez qu&apos;un.</translation>
    </message>
    <message>
        <source>Il record DMARC di %1 non vale: manca il campo p= con none, quarantine o reject.</source>
        <translation>L&apos;enregistrement DMARC de %1 n&apos;est pas valable&#xa0;: il manque le champ p= avec none, quarantine ou reject.</translation>
    </message>
    <message>
        <source>autorizzato</source>
        <translation>autorisé</translation>
    </message>
    <message>
        <source>vietato</source>
        <translation>interdit</translation>
    </message>
    <message>
        <source>non autorizzato</source>
        <translation>non autorisé</translation>
    </message>
    <message>
        <source>né autorizzato né vietato</source>
        <translation>ni autorisé ni interdit</translation>
    </message>
    <message>
        <source> da &quot;%1&quot; di %2</source>
        <translation> par «&#xa0;%1&#xa0;» de %2</translation>
    </message>
    <message>
        <source>, %1 ricerche su 10</source>
        <translation>, %1 recherches sur 10</translation>
    </message>
    <message>
        <source>; il dominio dice: %1</source>
        <translation>&#xa0;; le domaine dit&#xa0;: %1</translation>
    </message>
    <message>
        <source>Pubblicare un record SPF che nomini l&apos;indirizzo di questo computer: senza, molti server non si fidano dei messaggi.</source>
        <translation>Publiez un enregistrement SPF qui nomme l&apos;adresse de cet ordinateur&#xa0;: sans lui, beaucoup de serveurs se méfient des messages.</translation>
    </message>
    <message>
        <source>Pubblicare un record SPF con la riga che indica il fornitore del server: senza, molti server non si fidano dei messaggi.</source>
        <translation>Publiez un enregistrement SPF avec la ligne indiquée par le fournisseur du serveur&#xa0;: sans lui, beaucoup de serveurs se méfient des messages.</translation>
    </message>
    <message>
        <source>%1 ha più di un record SPF e nessuno vale: unirli in uno solo.</source>
        <translation>%1 a plus d&apos;un enregistrement SPF et aucun ne vaut&#xa0;: réunissez-les en un seul.</translation>
    </message>
    <message>
        <source>Il record SPF di %1 è troppo lungo: accorciarlo.</source>
        <translation>L&apos;enregistrement SPF de %1 est trop long&#xa0;: raccourcissez-le.</translation>
    </message>
    <message>
        <source>Il record SPF di %1 non vale per un errore in &quot;%2&quot;: correggerlo.</source>
        <translation>L&apos;enregistrement SPF de %1 n&apos;est pas valable à cause d&apos;une erreur dans «&#xa0;%2&#xa0;»&#xa0;: corrigez-le.</translation>
    </message>
    <message>
        <source>Il record SPF richiede più di 10 ricerche nel DNS e non vale: togliere meccanismi, per esempio %1.</source>
        <translation>L&apos;enregistrement SPF demande plus de 10 recherches dans le DNS et n&apos;est pas valable&#xa0;: retirez des mécanismes, par exemple %1.</translation>
    </message>
    <message>
        <source>Il record SPF di %1 nomina più di 2 domini senza record e non vale: togliere quelli che non esistono più, per esempio %2.</source>
        <translation>L&apos;enregistrement SPF de %1 nomme plus de 2 domaines sans enregistrement et n&apos;est pas valable&#xa0;: retirez ceux qui n&apos;existent plus, par exemple %2.</translation>
    </message>
    <message>
        <source>Nel record SPF di %1 &quot;%2&quot; porta a più di 10 server e non vale: indicare gli indirizzi con ip4 o ip6.</source>
        <translation>Dans l&apos;enregistrement SPF de %1, «&#xa0;%2&#xa0;» mène à plus de 10 serveurs et n&apos;est pas valable&#xa0;: indiquez les adresses avec ip4 ou ip6.</translation>
    </message>
    <message>
        <source>Nel record SPF di %1 &quot;%2&quot; porta a un dominio senza record SPF, e tutto il record non vale: toglierlo o correggerlo.</source>
        <translation>Dans l&apos;enregistrement SPF de %1, «&#xa0;%2&#xa0;» mène à un domaine sans enregistrement SPF, et tout l&apos;enregistrement n&apos;est pas valable&#xa0;: retirez-le ou corrigez-le.</translation>
    </message>
    <message>
        <source>Il record c&apos;è e si legge, ma l&apos;indirizzo pubblico di questo computer non si può conoscere da qui: verificare che il record lo nomini.</source>
        <translation>L&apos;enregistrement existe et se lit, mais l&apos;adresse publique de cet ordinateur n&apos;est pas connue d&apos;ici&#xa0;: vérifiez que l&apos;enregistrement la nomme.</translation>
    </message>
    <message>
        <source>Il record c&apos;è e si legge, ma il server non ha un indirizzo pubblico noto: chiedere al fornitore se è compreso nel record.</source>
        <translation>L&apos;enregistrement existe et se lit, mais aucune adresse publique du serveur n&apos;est connue&#xa0;: demandez au fournisseur s&apos;il est compris dans l&apos;enregistrement.</translation>
    </message>
    <message>
        <source>Il record autorizza l&apos;indirizzo di questo computer.</source>
        <translation>L&apos;enregistrement autorise l&apos;adresse de cet ordinateur.</translation>
    </message>
    <message>
        <source>Il record autorizza il server, per gli indirizzi che si conoscono.</source>
        <translation>L&apos;enregistrement autorise le serveur, pour les adresses connues.</translation>
    </message>
    <message>
        <source>Il record non autorizza l&apos;indirizzo di questo computer: aggiungerlo con ip4 o ip6.</source>
        <translation>L&apos;enregistrement n&apos;autorise pas l&apos;adresse de cet ordinateur&#xa0;: ajoutez-la avec ip4 ou ip6.</translation>
    </message>
    <message>
        <source>Il record autorizza solo alcuni indirizzi del server: aggiungere gli altri, o verificare con il fornitore da quali spedisce.</source>
        <translation>L&apos;enregistrement n&apos;autorise que certaines adresses du serveur&#xa0;: ajoutez les autres, ou vérifiez avec le fournisseur desquelles il envoie.</translation>
    </message>
    <message>
        <source>Il record non autorizza gli indirizzi noti del server: se il fornitore non spedisce da altri, aggiungere al record la riga che lui indica.</source>
        <translation>L&apos;enregistrement n&apos;autorise pas les adresses connues du serveur&#xa0;: si le fournisseur n&apos;envoie pas d&apos;autres adresses, ajoutez la ligne qu&apos;il indique.</translation>
    </message>
    <message>
        <source>La tabella dei destinatari non ha tutte le sue colonne.</source>
        <translation>La table des destinataires n&apos;a pas toutes ses colonnes.</translation>
    </message>
    <message>
        <source>Il messaggio non si può aprire: </source>
        <translation>Impossible d&apos;ouvrir le message&#xa0;: </translation>
    </message>
    <message>
        <source>Il file non contiene un messaggio intero: </source>
        <translation>Le fichier ne contient pas de message entier&#xa0;: </translation>
    </message>
    <message>
        <source>Tempo scaduto: il server non risponde.</source>
        <translation>Délai dépassé&#xa0;: le serveur ne répond pas.</translation>
    </message>
    <message>
        <source>Manca il nome del server.</source>
        <translation>Le nom du serveur manque.</translation>
    </message>
    <message>
        <source>Il nome del server non è valido.</source>
        <translation>Le nom du serveur n&apos;est pas valide.</translation>
    </message>
    <message>
        <source>La porta del server non è valida.</source>
        <translation>Le port du serveur n&apos;est pas valide.</translation>
    </message>
    <message>
        <source>Il portachiavi non ha dato la password di questo account.</source>
        <translation>Le trousseau n&apos;a pas donné le mot de passe de ce compte.</translation>
    </message>
    <message>
        <source>In ordine</source>
        <translation>En ordre</translation>
    </message>
    <message>
        <source>Attenzione</source>
        <translation>Attention</translation>
    </message>
    <message>
        <source>Da correggere</source>
        <translation>À corriger</translation>
    </message>
    <message>
        <source>In corso…</source>
        <translation>En cours…</translation>
    </message>
    <message>
        <source>Server raggiunto</source>
        <translation>Serveur joint</translation>
    </message>
    <message>
        <source>Certificato</source>
        <translation>Certificat</translation>
    </message>
    <message>
        <source>Accesso</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>Dimensione massima</source>
        <translation>Taille maximale</translation>
    </message>
    <message>
        <source>Non si è potuto provare: correggere prima le righe sopra.</source>
        <translation>Impossible à essayer&#xa0;: corrigez d&apos;abord les lignes ci-dessus.</translation>
    </message>
    <message>
        <source>Il server risponde.</source>
        <translation>Le serveur répond.</translation>
    </message>
    <message>
        <source>Verificare nome e porta del server nell&apos;account.</source>
        <translation>Vérifiez le nom et le port du serveur dans le compte.</translation>
    </message>
    <message>
        <source>La connessione è protetta.</source>
        <translation>La connexion est sécurisée.</translation>
    </message>
    <message>
        <source>Il server non offre una connessione protetta: usare la porta 587 o 465, o un altro server.</source>
        <translation>Le serveur n&apos;offre pas de connexion sécurisée&#xa0;: utilisez le port 587 ou 465, ou un autre serveur.</translation>
    </message>
    <message>
        <source>d MMMM yyyy</source>
        <comment>form of a date</comment>
        <translation>d MMMM yyyy</translation>
    </message>
    <message>
        <source>Per: %1</source>
        <translation>Pour&#xa0;: %1</translation>
    </message>
    <message>
        <source>Emesso da: %1</source>
        <translation>Émis par&#xa0;: %1</translation>
    </message>
    <message>
        <source>Vale fino al %1</source>
        <translation>Valable jusqu&apos;au %1</translation>
    </message>
    <message>
        <source>Il certificato è scaduto il %1: chi gestisce il server deve rinnovarlo.</source>
        <translation>Le certificat a expiré le %1&#xa0;: le gestionnaire du serveur doit le renouveler.</translation>
    </message>
    <message>
        <source>Il certificato non è accettato: verificare il nome del server nell&apos;account, o chiedere a chi lo gestisce.</source>
        <translation>Le certificat n&apos;est pas accepté&#xa0;: vérifiez le nom du serveur dans le compte, ou demandez à son gestionnaire.</translation>
    </message>
    <message>
        <source>Il certificato scade il %1: chi gestisce il server deve rinnovarlo in tempo.</source>
        <translation>Le certificat expire le %1&#xa0;: le gestionnaire du serveur doit le renouveler à temps.</translation>
    </message>
    <message>
        <source>Il certificato è valido fino al %1.</source>
        <translation>Le certificat est valable jusqu&apos;au %1.</translation>
    </message>
    <message>
        <source>L&apos;account non chiede l&apos;accesso.</source>
        <translation>Le compte ne demande pas de connexion.</translation>
    </message>
    <message>
        <source>Il server accetta utente e password.</source>
        <translation>Le serveur accepte l&apos;utilisateur et le mot de passe.</translation>
    </message>
    <message>
        <source>Verificare utente e password nell&apos;account.</source>
        <translation>Vérifiez l&apos;utilisateur et le mot de passe dans le compte.</translation>
    </message>
    <message>
        <source>Il server non dichiara un limite.</source>
        <translation>Le serveur n&apos;indique pas de limite.</translation>
    </message>
    <message>
        <source>Il server accetta messaggi fino a %1: tenere piccoli gli allegati.</source>
        <translation>Le serveur accepte des messages jusqu&apos;à %1&#xa0;: limitez les pièces jointes.</translation>
    </message>
    <message>
        <source>Il server accetta messaggi fino a %1.</source>
        <translation>Le serveur accepte des messages jusqu&apos;à %1.</translation>
    </message>
    <message>
        <source>Grave</source>
        <translation>Grave</translation>
    </message>
    <message>
        <source>Consiglio</source>
        <translation>Conseil</translation>
    </message>
    <message>
        <source>%1 non viene sostituito: si scrive %2.</source>
        <translation>%1 n&apos;est pas remplacé&#xa0;: on écrit %2.</translation>
    </message>
    <message>
        <source>%1 non viene sostituito: nessuna colonna ha questo nome.</source>
        <translation>%1 n&apos;est pas remplacé&#xa0;: aucune colonne ne porte ce nom.</translation>
    </message>
    <message>
        <source>%1 non viene sostituito nella forma HTML: è spezzato da un cambio di formato. Riscriverlo tutto di seguito.</source>
        <translation>%1 n&apos;est pas remplacé dans la forme HTML&#xa0;: un changement de format le coupe. Récrivez-le d&apos;un trait.</translation>
    </message>
    <message>
        <source>L&apos;allegato %1 non c&apos;è: il messaggio parte senza.</source>
        <translation>La pièce jointe %1 manque&#xa0;: le message part sans elle.</translation>
    </message>
    <message>
        <source>L&apos;oggetto è vuoto.</source>
        <translation>L&apos;objet est vide.</translation>
    </message>
    <message>
        <source>Manca la forma di solo testo: il messaggio non contiene testo, e chi non vede le immagini non legge niente.</source>
        <translation>La forme texte seul manque&#xa0;: le message ne contient pas de texte, et qui ne voit pas les images ne lit rien.</translation>
    </message>
    <message>
        <source>Manca un collegamento di disiscrizione: chi non vuole più messaggi li segnala come indesiderati. Si crea nell&apos;editor con il comando &quot;Collegamento&quot;.</source>
        <translation>Il manque un lien de désabonnement&#xa0;: qui ne veut plus de messages les signale comme indésirables. L&apos;éditeur en crée un avec la commande «&#xa0;Lien&#xa0;».</translation>
    </message>
    <message>
        <source>%1 è vuoto per %2 di %3 destinatari selezionati</source>
        <translation>%1 est vide pour %2 des %3 destinataires sélectionnés</translation>
    </message>
    <message>
        <source>; per %1 di loro si legge %2 al posto del valore.</source>
        <translation>&#xa0;; pour %1 d&apos;entre eux, on lit %2 à la place de la valeur.</translation>
    </message>
    <message>
        <source>I caratteri &lt;, &amp; o &quot; di %1 cambiano il messaggio per %2 di %3 destinatari selezionati.</source>
        <translation>Les caractères &lt;, &amp; ou &quot; de %1 changent le message pour %2 des %3 destinataires sélectionnés.</translation>
    </message>
    <message>
        <source>Il corpo è di %1: oltre 100 kB i grandi gestori di posta lo tagliano.</source>
        <translation>Le corps fait %1&#xa0;: au-delà de 100 ko, les grands fournisseurs de messagerie le coupent.</translation>
    </message>
    <message>
        <source>(senza indirizzo)</source>
        <translation>(sans adresse)</translation>
    </message>
    <message numerus="yes">
        <source>%Ln immagini non ci sono</source>
        <translation>
            <numerusform>Il manque une image</numerusform>
            <numerusform>Il manque %Ln images</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file non possono partire come immagini del messaggio</source>
        <translation>
            <numerusform>Un fichier ne peut partir comme image du message</numerusform>
            <numerusform>%Ln fichiers ne peuvent partir comme images du message</numerusform>
        </translation>
    </message>
    <message>
        <source>(non è un&apos;immagine, o insieme superano 10 MB)</source>
        <translation>(pas une image, ou plus de 10 Mo ensemble)</translation>
    </message>
    <message numerus="yes">
        <source>%Ln collegamenti non portano da nessuna parte</source>
        <translation>
            <numerusform>Un lien ne mène nulle part</numerusform>
            <numerusform>%Ln liens ne mènent nulle part</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln immagini restano sul web</source>
        <translation>
            <numerusform>Une image reste sur le web</numerusform>
            <numerusform>%Ln images restent sur le web</numerusform>
        </translation>
    </message>
    <message>
        <source>Molti programmi di posta non le mostrano finché il destinatario non vuole.</source>
        <translation>Beaucoup de logiciels de messagerie ne les affichent que si le destinataire le veut.</translation>
    </message>
    <message>
        <source>it</source>
        <comment>the ISO 639 code of this language</comment>
        <translation>fr</translation>
    </message>
    <message>
        <source>In attesa del database, usato da un altro programma… Esc per rinunciare</source>
        <translation>En attente de la base de données, utilisée par un autre programme… Échap pour renoncer</translation>
    </message>
    <message>
        <source>Ordine decrescente</source>
        <translation>Ordre décroissant</translation>
    </message>
    <message>
        <source>Ordine crescente</source>
        <translation>Ordre croissant</translation>
    </message>
    <message>
        <source>Il file &quot;%1&quot; non contiene una disposizione valida delle barre.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» ne contient pas de disposition valide des barres.</translation>
    </message>
    <message>
        <source>Impossibile scrivere il file &quot;%1&quot;.</source>
        <translation>Impossible d&apos;écrire le fichier «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Impossibile leggere il file &quot;%1&quot;.</source>
        <translation>Impossible de lire le fichier «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Proprietà elemento</source>
        <translation>Propriétés de l&apos;élément</translation>
    </message>
    <message>
        <source>Attributo</source>
        <translation>Attribut</translation>
    </message>
    <message>
        <source>Valore</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Attributi</source>
        <translation>Attributs</translation>
    </message>
    <message>
        <source>&amp;Elemento:</source>
        <translation>&amp;Élément&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Annulla</source>
        <translation>A&amp;nnuler</translation>
    </message>
    <message>
        <source>Trova</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Solo sele&amp;zionati</source>
        <translation>Sé&amp;lectionnés seuls</translation>
    </message>
    <message>
        <source>T&amp;rova:</source>
        <translation>&amp;Rechercher&#xa0;:</translation>
    </message>
    <message>
        <source>Dove cercare</source>
        <translation>Où rechercher</translation>
    </message>
    <message>
        <source>Precedente</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Trova precedente (Maiusc+Invio)</source>
        <translation>Rechercher le précédent (Maj+Entrée)</translation>
    </message>
    <message>
        <source>Successivo</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Trova successivo (Invio)</source>
        <translation>Rechercher le suivant (Entrée)</translation>
    </message>
    <message>
        <source>Chiudi</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Chiudi la barra (Esc)</source>
        <translation>Fermer la barre (Échap)</translation>
    </message>
    <message>
        <source>&amp;Maiuscole e minuscole</source>
        <translation>&amp;Respecter la casse</translation>
    </message>
    <message>
        <source>&amp;Testo:</source>
        <translation>&amp;Texte&#xa0;:</translation>
    </message>
    <message>
        <source>Trova &amp;successivo</source>
        <translation>&amp;Suivant</translation>
    </message>
    <message>
        <source>Trova &amp;precedente</source>
        <translation>&amp;Précédent</translation>
    </message>
    <message>
        <source>&amp;Chiudi</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Testo non trovato.</source>
        <translation>Texte introuvable.</translation>
    </message>
    <message>
        <source>Elemento &quot;%1&quot; non trovato.</source>
        <translation>Élément «&#xa0;%1&#xa0;» introuvable.</translation>
    </message>
    <message>
        <source>L&apos;elemento &quot;%1&quot; esiste già.</source>
        <translation>L&apos;élément «&#xa0;%1&#xa0;» existe déjà.</translation>
    </message>
    <message>
        <source>Un elemento non può essere spostato dentro sé stesso o i propri elementi.</source>
        <translation>Un élément ne peut être déplacé dans lui-même ni dans les siens.</translation>
    </message>
    <message>
        <source>pixel o %</source>
        <translation>pixels ou %</translation>
    </message>
    <message>
        <source>Nessuno</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>A sinistra</source>
        <translation>À gauche</translation>
    </message>
    <message>
        <source>A destra</source>
        <translation>À droite</translation>
    </message>
    <message>
        <source>In alto</source>
        <translation>En haut</translation>
    </message>
    <message>
        <source>Al centro</source>
        <translation>Au milieu</translation>
    </message>
    <message>
        <source>In basso</source>
        <translation>En bas</translation>
    </message>
    <message>
        <source>Immagine</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>S&amp;foglia...</source>
        <translation>&amp;Parcourir...</translation>
    </message>
    <message>
        <source>&amp;File o indirizzo:</source>
        <translation>&amp;Fichier ou adresse&#xa0;:</translation>
    </message>
    <message>
        <source>File o indirizzo</source>
        <translation>Fichier ou adresse</translation>
    </message>
    <message>
        <source>&amp;Testo alternativo:</source>
        <translation>&amp;Texte de remplacement&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Larghezza:</source>
        <translation>&amp;Largeur&#xa0;:</translation>
    </message>
    <message>
        <source>A&amp;ltezza:</source>
        <translation>&amp;Hauteur&#xa0;:</translation>
    </message>
    <message>
        <source>Alli&amp;neamento:</source>
        <translation>Ali&amp;gnement&#xa0;:</translation>
    </message>
    <message>
        <source>Inserisci immagine</source>
        <translation>Insérer une image</translation>
    </message>
    <message>
        <source>Immagini|*.png;*.jpg;*.jpeg;*.gif;*.bmp;*.webp|Tutti i file|*</source>
        <translation>Images|*.png;*.jpg;*.jpeg;*.gif;*.bmp;*.webp|Tous les fichiers|*</translation>
    </message>
    <message>
        <source>Indirizzo web</source>
        <translation>Adresse web</translation>
    </message>
    <message>
        <source>Posta elettronica</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Collegamento di &amp;disiscrizione</source>
        <translation>Lien de &amp;désabonnement</translation>
    </message>
    <message>
        <source>Collegamento</source>
        <translation>Lien</translation>
    </message>
    <message>
        <source>I programmi di posta lo offrono al destinatario per disiscriversi con un clic</source>
        <translation>Les logiciels de messagerie le proposent au destinataire pour se désabonner d&apos;un clic</translation>
    </message>
    <message>
        <source>Inserisci nell&apos;indirizzo...</source>
        <translation>Insérer dans l&apos;adresse...</translation>
    </message>
    <message>
        <source>&amp;Tipo:</source>
        <translation>T&amp;ype&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Indirizzo:</source>
        <translation>&amp;Adresse&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Variabile:</source>
        <translation>&amp;Variable&#xa0;:</translation>
    </message>
    <message>
        <source>T&amp;esto:</source>
        <translation>Te&amp;xte&#xa0;:</translation>
    </message>
    <message>
        <source>Ri&amp;muovi</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>&amp;Riavvia</source>
        <translation>&amp;Redémarrer</translation>
    </message>
    <message>
        <source>Ctrl+Tab inserisce una tabulazione</source>
        <translation>Ctrl+Tab insère une tabulation</translation>
    </message>
    <message>
        <source>Contiene una tabulazione</source>
        <translation>Contient une tabulation</translation>
    </message>
    <message>
        <source>Viste</source>
        <translation>Vues</translation>
    </message>
    <message>
        <source>Gli account non sono stati salvati:<byte value="xd"/>
il file Account.imp appartiene a un altro utente, che potrebbe leggere le password.</source>
        <translation>Les comptes n&apos;ont pas été enregistrés&#xa0;:<byte value="xd"/>
le fichier Account.imp appartient à un autre utilisateur, qui pourrait lire les mots de passe.</translation>
    </message>
    <message>
        <source>Il file degli account non può contenere questi caratteri:</source>
        <translation>Le fichier des comptes n&apos;accepte pas ces caractères&#xa0;:</translation>
    </message>
    <message>
        <source>In attesa del portachiavi… Esc per rinunciare</source>
        <translation>En attente du trousseau… Échap pour renoncer</translation>
    </message>
    <message>
        <source>Conserva la password nel portachiavi del desktop.</source>
        <translation>Conserver le mot de passe dans le trousseau du bureau.</translation>
    </message>
    <message>
        <source>In attesa del browser: annulla l&apos;accesso</source>
        <translation>En attente du navigateur&#xa0;: annuler la connexion</translation>
    </message>
    <message>
        <source>Accedi con il browser...</source>
        <translation>Se connecter avec le navigateur...</translation>
    </message>
    <message>
        <source>Per accedere con il browser scrivere prima lo username, di solito l&apos;indirizzo email.</source>
        <translation>Pour se connecter avec le navigateur, saisissez d&apos;abord l&apos;utilisateur, en général l&apos;adresse e-mail.</translation>
    </message>
    <message>
        <source>Accesso riuscito. Salvare ora l&apos;account con &quot;Nuovo Account&quot; o &quot;Modifica Account&quot;.</source>
        <translation>Connexion réussie. Enregistrez maintenant le compte avec «&#xa0;Nouveau compte&#xa0;» ou «&#xa0;Modifier le compte&#xa0;».</translation>
    </message>
    <message>
        <source>Nessun account: compilare e premere Nuovo Account</source>
        <translation>Aucun compte&#xa0;: remplissez et cliquez sur Nouveau compte</translation>
    </message>
    <message>
        <source>Allegato</source>
        <translation>Pièce jointe</translation>
    </message>
    <message>
        <source>Cartella nascosta o fuori da quella personale</source>
        <translation>Dossier caché ou hors du dossier personnel</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Dimensione</source>
        <translation>Taille</translation>
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
        <translation>Opération&#xa0;: </translation>
    </message>
    <message>
        <source>Finestra: </source>
        <translation>Fenêtre&#xa0;: </translation>
    </message>
    <message>
        <source>File: </source>
        <translation>Fichier&#xa0;: </translation>
    </message>
    <message>
        <source>Il programma viene chiuso</source>
        <translation>Le programme se ferme</translation>
    </message>
    <message>
        <source>&amp;Prova messaggio...</source>
        <translation>&amp;Essai du message...</translation>
    </message>
    <message>
        <source>Il messaggio come lo riceve un destinatario</source>
        <translation>Le message tel que le reçoit un destinataire</translation>
    </message>
    <message>
        <source>Controllo del &amp;mittente...</source>
        <translation>&amp;Contrôle de l&apos;expéditeur...</translation>
    </message>
    <message>
        <source>Come i server dei destinatari vedono il dominio e il server di un account</source>
        <translation>Comment les serveurs des destinataires voient le domaine et le serveur d&apos;un compte</translation>
    </message>
    <message>
        <source>&amp;Esito degli invii...</source>
        <translation>&amp;Résultat des envois...</translation>
    </message>
    <message>
        <source>Chi ha ricevuto i messaggi, chi no e perché</source>
        <translation>Qui a reçu les messages, qui non et pourquoi</translation>
    </message>
    <message>
        <source>&amp;Trova destinatari...</source>
        <translation>Rechercher des &amp;destinataires...</translation>
    </message>
    <message>
        <source>Trova destinatari nella cartella o ovunque</source>
        <translation>Rechercher des destinataires dans le dossier ou partout</translation>
    </message>
    <message>
        <source>&amp;Ordina per la colonna corrente</source>
        <translation>&amp;Trier par la colonne actuelle</translation>
    </message>
    <message>
        <source>Ordina l&apos;elenco per la colonna corrente; la terza volta torna l&apos;ordine di prima</source>
        <translation>Trie la liste par la colonne actuelle&#xa0;; la troisième fois, l&apos;ordre d&apos;avant revient</translation>
    </message>
    <message>
        <source>&amp;Indirizzi doppi...</source>
        <translation>&amp;Adresses en double...</translation>
    </message>
    <message>
        <source>Trova gli indirizzi selezionati più di una volta</source>
        <translation>Trouve les adresses sélectionnées plus d&apos;une fois</translation>
    </message>
    <message>
        <source>Recupera &amp;cartelle perdute...</source>
        <translation>Récupérer les dossiers &amp;perdus...</translation>
    </message>
    <message>
        <source>Riporta sotto la radice cartelle e destinatari che l&apos;albero non mostra</source>
        <translation>Ramène sous la racine les dossiers et destinataires que l&apos;arbre ne montre pas</translation>
    </message>
    <message>
        <source>&amp;Ultima importazione...</source>
        <translation>Dernière &amp;importation...</translation>
    </message>
    <message>
        <source>Righe importate e rifiutate dall&apos;ultima importazione</source>
        <translation>Lignes importées et refusées par la dernière importation</translation>
    </message>
    <message>
        <source>Il record non si legge</source>
        <translation>L&apos;enregistrement est illisible</translation>
    </message>
    <message>
        <source>tabella &quot;%1&quot; di %2</source>
        <translation>table «&#xa0;%1&#xa0;» de %2</translation>
    </message>
    <message>
        <source>Importazione da file di testo</source>
        <translation>Importation d&apos;un fichier texte</translation>
    </message>
    <message>
        <source>L&apos;indirizzo ha meno di %1 caratteri</source>
        <translation>L&apos;adresse a moins de %1 caractères</translation>
    </message>
    <message>
        <source>Lettura dei contatti di Outlook in corso… Esc per interrompere</source>
        <translation>Lecture des contacts Outlook… Échap pour interrompre</translation>
    </message>
    <message>
        <source>file</source>
        <translation>fichiers</translation>
    </message>
    <message>
        <source>chiamate di sistema</source>
        <translation>appels système</translation>
    </message>
    <message>
        <source>memoria</source>
        <translation>mémoire</translation>
    </message>
    <message>
        <source>Outlook letto senza queste protezioni del sistema: </source>
        <translation>Outlook lu sans ces protections du système&#xa0;: </translation>
    </message>
    <message>
        <source>contatti di Outlook</source>
        <translation>contacts Outlook</translation>
    </message>
    <message>
        <source>Non è un contatto</source>
        <translation>Pas un contact</translation>
    </message>
    <message>
        <source>rubrica</source>
        <translation>carnet d&apos;adresses</translation>
    </message>
    <message>
        <source>obbligatorio</source>
        <translation>obligatoire</translation>
    </message>
    <message>
        <source>Nessun allegato</source>
        <translation>Aucune pièce jointe</translation>
    </message>
    <message>
        <source>Variabile oggetto non impostata</source>
        <translation>Variable objet non définie</translation>
    </message>
    <message>
        <source>Colore del testo</source>
        <translation>Couleur du texte</translation>
    </message>
    <message>
        <source>Messaggio</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>Origine del messaggio</source>
        <translation>Source du message</translation>
    </message>
    <message>
        <source>Anteprima del messaggio</source>
        <translation>Aperçu du message</translation>
    </message>
    <message>
        <source>Il messaggio non è stato stampato.</source>
        <translation>Le message n&apos;a pas été imprimé.</translation>
    </message>
    <message>
        <source>Riprova fra qualche istante.</source>
        <translation>Réessayez dans un instant.</translation>
    </message>
    <message>
        <source>Il testo incollato nominava file di questo computer, che sarebbero partiti con il messaggio. Sono stati lasciati fuori:</source>
        <translation>Le texte collé nommait des fichiers de cet ordinateur, qui seraient partis avec le message. Ils ont été laissés de côté&#xa0;:</translation>
    </message>
    <message numerus="yes">
        <source>e altri %n</source>
        <translation>
            <numerusform>et %n autre</numerusform>
            <numerusform>et %n autres</numerusform>
        </translation>
    </message>
    <message>
        <source>Per mettere un&apos;immagine nel messaggio usa &quot;Inserisci immagine&quot;.</source>
        <translation>Pour mettre une image dans le message, utilisez «&#xa0;Insérer une image&#xa0;».</translation>
    </message>
    <message numerus="yes">
        <source>Nel testo incollato %n elementi restano sul web</source>
        <translation>
            <numerusform>Dans le texte collé, %n élément reste sur le web</numerusform>
            <numerusform>Dans le texte collé, %n éléments restent sur le web</numerusform>
        </translation>
    </message>
    <message>
        <source>Il testo resta nell&apos;origine, il messaggio è quello di prima.</source>
        <translation>Le texte reste dans la source, le message est celui d&apos;avant.</translation>
    </message>
    <message>
        <source>Il file del messaggio non può contenere questi caratteri, al loro posto c&apos;è &quot;?&quot;:</source>
        <translation>Le fichier du message n&apos;accepte pas ces caractères, «&#xa0;?&#xa0;» les remplace&#xa0;:</translation>
    </message>
    <message>
        <source>Oggetto: </source>
        <translation>Objet&#xa0;: </translation>
    </message>
    <message>
        <source>Percorsi degli allegati: </source>
        <translation>Chemins des pièces jointes&#xa0;: </translation>
    </message>
    <message>
        <source>Questi allegati non saranno trovati: rinomina i file.</source>
        <translation>Ces pièces jointes seront introuvables&#xa0;: renommez les fichiers.</translation>
    </message>
    <message>
        <source>Il messaggio è stato salvato, ma così non si potrà né aprire né inviare.</source>
        <translation>Le message a été enregistré, mais ainsi on ne pourra ni l&apos;ouvrir ni l&apos;envoyer.</translation>
    </message>
    <message>
        <source>Il messaggio non è stato salvato: riprova fra qualche istante.</source>
        <translation>Le message n&apos;a pas été enregistré&#xa0;: réessayez dans un instant.</translation>
    </message>
    <message>
        <source>Il messaggio non è stato salvato in %1:</source>
        <translation>Le message n&apos;a pas été enregistré dans %1&#xa0;:</translation>
    </message>
    <message>
        <source>Salvalo con un altro nome.</source>
        <translation>Enregistrez-le sous un autre nom.</translation>
    </message>
    <message>
        <source>Il messaggio nella finestra resta quello di prima.</source>
        <translation>Le message de la fenêtre reste celui d&apos;avant.</translation>
    </message>
    <message>
        <source>Una copia di recupero è danneggiata e non si può leggere.<byte value="xd"/>
Il file resta in </source>
        <translation>Une copie de récupération est endommagée et illisible.<byte value="xd"/>
Le fichier reste dans </translation>
    </message>
    <message>
        <source>Il messaggio %1 non è stato salvato prima della fine del programma.<byte value="xd"/>
Oggetto: %2<byte value="xd"/>
Ultima modifica: %3<byte value="xd"/>
Vuoi recuperarlo?</source>
        <translation>Le message %1 n&apos;a pas été enregistré avant la fin du programme.<byte value="xd"/>
Objet&#xa0;: %2<byte value="xd"/>
Dernière modification&#xa0;: %3<byte value="xd"/>
Voulez-vous le récupérer&#xa0;?</translation>
    </message>
    <message>
        <source>Il testo recuperato è nell&apos;origine.</source>
        <translation>Le texte récupéré est dans la source.</translation>
    </message>
    <message>
        <source>Proprietà del messaggio</source>
        <translation>Propriétés du message</translation>
    </message>
    <message>
        <source>Margine sinistro della pagina, in pixel</source>
        <translation>Marge gauche de la page, en pixels</translation>
    </message>
    <message>
        <source>Margine superiore della pagina, in pixel</source>
        <translation>Marge supérieure de la page, en pixels</translation>
    </message>
    <message>
        <source>Margine orizzontale per altri programmi di posta, in pixel</source>
        <translation>Marge horizontale pour d&apos;autres logiciels de messagerie, en pixels</translation>
    </message>
    <message>
        <source>Margine verticale per altri programmi di posta, in pixel</source>
        <translation>Marge verticale pour d&apos;autres logiciels de messagerie, en pixels</translation>
    </message>
    <message>
        <source>Colore di sfondo della pagina</source>
        <translation>Couleur de fond de la page</translation>
    </message>
    <message>
        <source>Colore dei collegamenti</source>
        <translation>Couleur des liens</translation>
    </message>
    <message>
        <source>Colore dei collegamenti mentre si premono</source>
        <translation>Couleur des liens pendant le clic</translation>
    </message>
    <message>
        <source>Colore dei collegamenti già visitati</source>
        <translation>Couleur des liens visités</translation>
    </message>
    <message>
        <source>Percorso o indirizzo dell&apos;immagine di sfondo</source>
        <translation>Chemin ou adresse de l&apos;image de fond</translation>
    </message>
    <message>
        <source>Il file degli invii già accettati era danneggiato ed è stato messo da parte:</source>
        <translation>Le fichier des envois déjà acceptés était endommagé et a été mis de côté&#xa0;:</translation>
    </message>
    <message>
        <source>Chi vi era ricordato potrebbe ricevere il messaggio una seconda volta.</source>
        <translation>Ceux qui y figuraient pourraient recevoir le message une deuxième fois.</translation>
    </message>
    <message>
        <source>Sfoglia il messaggio</source>
        <translation>Parcourir pour choisir le message</translation>
    </message>
    <message>
        <source>Invio terminato</source>
        <translation>Envoi terminé</translation>
    </message>
    <message>
        <source>Nessun messaggio è stato scelto.</source>
        <translation>Aucun message n&apos;a été choisi.</translation>
    </message>
    <message>
        <source>Il messaggio scelto resta </source>
        <translation>Le message choisi reste </translation>
    </message>
    <message>
        <source>Ogni destinatario riceverà, insieme al messaggio, questi file di questo computer.<byte value="xd"/>
Vuoi inviarli?</source>
        <translation>Avec le message, chaque destinataire recevra ces fichiers de cet ordinateur.<byte value="xd"/>
Voulez-vous les envoyer&#xa0;?</translation>
    </message>
    <message>
        <source>Non chiederlo &amp;più per questo messaggio</source>
        <translation>Ne &amp;plus demander pour ce message</translation>
    </message>
    <message>
        <source>Il file per l&apos;assistenza non si può scrivere:</source>
        <translation>Impossible d&apos;écrire le fichier pour l&apos;assistance&#xa0;:</translation>
    </message>
    <message>
        <source>L&apos;invio prosegue senza.</source>
        <translation>L&apos;envoi continue sans lui.</translation>
    </message>
    <message>
        <source>Un&apos;altra finestra di Vestrola sta inviando ai destinatari di questo database.<byte value="xd"/>
Riprovare quando avrà finito.</source>
        <translation>Une autre fenêtre de Vestrola envoie aux destinataires de cette base de données.<byte value="xd"/>
Réessayez quand elle aura fini.</translation>
    </message>
    <message>
        <source>Alcuni destinatari sono già stati serviti, ma non è possibile toglierli dalla selezione:</source>
        <translation>Certains destinataires ont déjà été servis, mais il est impossible de les retirer de la sélection&#xa0;:</translation>
    </message>
    <message>
        <source>L&apos;invio non è iniziato. Riprovare più tardi.</source>
        <translation>L&apos;envoi n&apos;a pas commencé. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>Il disco del database è pieno. Chi riceve il messaggio resta selezionato finché non c&apos;è di nuovo posto, ma non lo riceve una seconda volta.</source>
        <translation>Le disque de la base de données est plein. Qui reçoit le message reste sélectionné jusqu&apos;à ce qu&apos;il y ait de nouveau de la place, mais ne le reçoit pas une deuxième fois.</translation>
    </message>
    <message>
        <source>L&apos;invio non è iniziato.</source>
        <translation>L&apos;envoi n&apos;a pas commencé.</translation>
    </message>
    <message>
        <source>Se il database non potrà essere aggiornato, non tutti i destinatari saranno serviti.</source>
        <translation>Si la base de données ne peut être mise à jour, tous les destinataires ne seront pas servis.</translation>
    </message>
    <message>
        <source>I messaggi di questo invio partono senza firma.</source>
        <translation>Les messages de cet envoi partent sans signature.</translation>
    </message>
    <message>
        <source>meno di un minuto</source>
        <translation>moins d&apos;une minute</translation>
    </message>
    <message numerus="yes">
        <source>circa %n minuti</source>
        <translation>
            <numerusform>environ une minute</numerusform>
            <numerusform>environ %n minutes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>circa %n ore</source>
        <translation>
            <numerusform>environ une heure</numerusform>
            <numerusform>environ %n heures</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>circa %n ore e %1 min</source>
        <translation>
            <numerusform>environ une heure et %1 min</numerusform>
            <numerusform>environ %n heures et %1 min</numerusform>
        </translation>
    </message>
    <message>
        <source>Tempo rimanente: %1</source>
        <translation>Temps restant&#xa0;: %1</translation>
    </message>
    <message>
        <source>Il registro degli esiti non si può scrivere. %1</source>
        <translation>Impossible d&apos;écrire le journal des résultats. %1</translation>
    </message>
    <message>
        <source>Ultima non inviata: %1</source>
        <translation>Dernier non envoyé&#xa0;: %1</translation>
    </message>
    <message>
        <source>Per chiudere: Esc o un clic</source>
        <translation>Pour fermer&#xa0;: Échap ou un clic</translation>
    </message>
    <message>
        <source>Scegliere una cartella</source>
        <translation>Choisissez un dossier</translation>
    </message>
    <message>
        <source>Chiusura del programma</source>
        <translation>Fermeture du programme</translation>
    </message>
    <message>
        <source>&amp;Strumenti</source>
        <translation>&amp;Outils</translation>
    </message>
    <message>
        <source>Strumenti</source>
        <translation>Outils</translation>
    </message>
    <message>
        <source>Avanzamento</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Copia di </source>
        <translation>Copie de </translation>
    </message>
    <message>
        <source>Il destinatario è compreso nel prossimo invio</source>
        <translation>Le destinataire fait partie du prochain envoi</translation>
    </message>
    <message>
        <source>Ragione sociale (max %1 caratteri)</source>
        <translation>Société (%1 caractères max.)</translation>
    </message>
    <message>
        <source>Nome e/o cognome (max %1 caratteri)</source>
        <translation>Prénom et/ou nom (%1 caractères max.)</translation>
    </message>
    <message>
        <source>Partita Iva o codice fiscale (max %1 caratteri)</source>
        <translation>N° de TVA (%1 caractères max.)</translation>
    </message>
    <message>
        <source>Via e numero civico (max %1 caratteri)</source>
        <translation>Rue et numéro (%1 caractères max.)</translation>
    </message>
    <message>
        <source>Codice di avviamento postale (max %1 caratteri)</source>
        <translation>Code postal (%1 caractères max.)</translation>
    </message>
    <message>
        <source>Località (max %1 caratteri)</source>
        <translation>Localité (%1 caractères max.)</translation>
    </message>
    <message>
        <source>Numero di telefono (max %1 caratteri)</source>
        <translation>Numéro de téléphone (%1 caractères max.)</translation>
    </message>
    <message>
        <source>Numero di fax (max %1 caratteri)</source>
        <translation>Numéro de fax (%1 caractères max.)</translation>
    </message>
    <message>
        <source>Nuova cartella: tasto destro sulla radice</source>
        <translation>Nouveau dossier&#xa0;: clic droit sur la racine</translation>
    </message>
    <message numerus="yes">
        <source>%Ln destinatari</source>
        <translation>
            <numerusform>%Ln destinataire</numerusform>
            <numerusform>%Ln destinataires</numerusform>
        </translation>
    </message>
    <message>
        <source>Destinatario da spostare: %1. Ctrl+V su una cartella lo sposta</source>
        <translation>Destinataire à déplacer&#xa0;: %1. Ctrl+V sur un dossier le déplace</translation>
    </message>
    <message>
        <source>Cartella da spostare: %1. Ctrl+V su un&apos;altra cartella la sposta</source>
        <translation>Dossier à déplacer&#xa0;: %1. Ctrl+V sur un autre dossier le déplace</translation>
    </message>
    <message>
        <source>Destinatario spostato in %1</source>
        <translation>Destinataire déplacé dans %1</translation>
    </message>
    <message>
        <source>Cartella spostata in %1</source>
        <translation>Dossier déplacé dans %1</translation>
    </message>
    <message>
        <source>La cartella non può essere spostata in %1</source>
        <translation>Le dossier ne peut être déplacé dans %1</translation>
    </message>
    <message>
        <source>Nessun destinatario in questa cartella</source>
        <translation>Aucun destinataire dans ce dossier</translation>
    </message>
    <message>
        <source>Ordine dell&apos;elenco</source>
        <translation>Ordre de la liste</translation>
    </message>
    <message>
        <source>Ordinati per %1, crescente</source>
        <translation>Triés par %1, croissant</translation>
    </message>
    <message>
        <source>Ordinati per %1, decrescente</source>
        <translation>Triés par %1, décroissant</translation>
    </message>
    <message>
        <source>Impossibile leggere i destinatari di questa cartella</source>
        <translation>Impossible de lire les destinataires de ce dossier</translation>
    </message>
    <message>
        <source>Fai clic sulla cartella per vedere i destinatari</source>
        <translation>Cliquez sur le dossier pour voir les destinataires</translation>
    </message>
    <message>
        <source>In questa cartella</source>
        <translation>Dans ce dossier</translation>
    </message>
    <message>
        <source>Ovunque</source>
        <translation>Partout</translation>
    </message>
    <message>
        <source>Ricerca non riuscita: %1</source>
        <translation>La recherche a échoué&#xa0;: %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln trovati, ricerca in corso…</source>
        <translation>
            <numerusform>%Ln trouvé, recherche en cours…</numerusform>
            <numerusform>%Ln trouvés, recherche en cours…</numerusform>
        </translation>
    </message>
    <message>
        <source>Nessun risultato</source>
        <translation>Aucun résultat</translation>
    </message>
    <message>
        <source>%1 di %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln trovati</source>
        <translation>
            <numerusform>%Ln trouvé</numerusform>
            <numerusform>%Ln trouvés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln cartelle</source>
        <translation>
            <numerusform>%1 dans %Ln dossier</numerusform>
            <numerusform>%1 dans %Ln dossiers</numerusform>
        </translation>
    </message>
    <message>
        <source>, %1 in cartelle perdute</source>
        <translation>, %1 dans des dossiers perdus</translation>
    </message>
    <message>
        <source>; qui %1</source>
        <translation>&#xa0;; ici %1</translation>
    </message>
    <message>
        <source>Recupera cartelle perdute</source>
        <translation>Récupérer les dossiers perdus</translation>
    </message>
    <message>
        <source>Cartella</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Destinatari</source>
        <translation>Destinataires</translation>
    </message>
    <message>
        <source>Perché non si vede</source>
        <translation>Pourquoi il ne se voit pas</translation>
    </message>
    <message>
        <source>L&apos;albero non mostra %1 e %2.<byte value="xd"/>
Portarli sotto &quot;Database Mailing&quot;?</source>
        <translation>L&apos;arbre ne montre pas %1 et %2.<byte value="xd"/>
Les ramener sous «&#xa0;Database Mailing&#xa0;»&#xa0;?</translation>
    </message>
    <message numerus="yes">
        <source>%Ln cartelle</source>
        <translation>
            <numerusform>%Ln dossier</numerusform>
            <numerusform>%Ln dossiers</numerusform>
        </translation>
    </message>
    <message>
        <source>L&apos;elenco mostra le prime %1 righe.</source>
        <translation>La liste montre les %1 premières lignes.</translation>
    </message>
    <message>
        <source>Nessuna cartella è perduta: l&apos;albero le mostra tutte.</source>
        <translation>Aucun dossier n&apos;est perdu&#xa0;: l&apos;arbre les montre tous.</translation>
    </message>
    <message>
        <source>Impossibile recuperare tutte le cartelle.</source>
        <translation>Impossible de récupérer tous les dossiers.</translation>
    </message>
    <message>
        <source> Chiave DKIM di %1</source>
        <translation> Clé DKIM de %1</translation>
    </message>
    <message>
        <source>La chiave è stata creata. Pubblicare nel DNS del dominio un record TXT con questo nome e questo valore, poi premere Controlla.</source>
        <translation>La clé a été créée. Publiez dans le DNS du domaine un enregistrement TXT avec ce nom et cette valeur, puis cliquez sur Vérifier.</translation>
    </message>
    <message>
        <source>Il dominio ha già una chiave, che resta com&apos;è. Questo è il record TXT da pubblicare nel suo DNS.</source>
        <translation>Le domaine a déjà une clé, qui reste telle quelle. Voici l&apos;enregistrement TXT à publier dans son DNS.</translation>
    </message>
    <message>
        <source>Selettore:</source>
        <translation>Sélecteur&#xa0;:</translation>
    </message>
    <message>
        <source>Nome del record:</source>
        <translation>Nom de l&apos;enregistrement&#xa0;:</translation>
    </message>
    <message>
        <source>Valore:</source>
        <translation>Valeur&#xa0;:</translation>
    </message>
    <message>
        <source>Riga per un file di zona:</source>
        <translation>Ligne pour un fichier de zone&#xa0;:</translation>
    </message>
    <message>
        <source>Copia &amp;nome</source>
        <translation>Copier le &amp;nom</translation>
    </message>
    <message>
        <source>Il nome è negli appunti.</source>
        <translation>Le nom est dans le presse-papiers.</translation>
    </message>
    <message>
        <source>Copia &amp;valore</source>
        <translation>Copier la &amp;valeur</translation>
    </message>
    <message>
        <source>Il valore è negli appunti.</source>
        <translation>La valeur est dans le presse-papiers.</translation>
    </message>
    <message>
        <source>Copia riga di &amp;zona</source>
        <translation>Copier la ligne de &amp;zone</translation>
    </message>
    <message>
        <source>La riga è negli appunti.</source>
        <translation>La ligne est dans le presse-papiers.</translation>
    </message>
    <message>
        <source> Controllo del mittente</source>
        <translation> Contrôle de l&apos;expéditeur</translation>
    </message>
    <message>
        <source>Nessun account: crearne uno con File, Imposta Account.</source>
        <translation>Aucun compte&#xa0;: créez-en un avec Fichier, Configurer les comptes.</translation>
    </message>
    <message>
        <source>Il file degli account è danneggiato: si vedono solo quelli prima del guasto.</source>
        <translation>Le fichier des comptes est endommagé&#xa0;: seuls ceux d&apos;avant le dommage sont visibles.</translation>
    </message>
    <message>
        <source>Scegliere un account e premere Controlla.</source>
        <translation>Choisissez un compte et cliquez sur Vérifier.</translation>
    </message>
    <message>
        <source>Controllo in corso… Esc per interrompere.</source>
        <translation>Contrôle en cours… Échap pour interrompre.</translation>
    </message>
    <message>
        <source>Interrotto</source>
        <translation>Interrompu</translation>
    </message>
    <message numerus="yes">
        <source>%n righe</source>
        <translation>
            <numerusform>%n ligne</numerusform>
            <numerusform>%n lignes</numerusform>
        </translation>
    </message>
    <message>
        <source>Controllo finito: tutto in ordine.</source>
        <translation>Contrôle terminé&#xa0;: tout est en ordre.</translation>
    </message>
    <message>
        <source>Controllo finito: %1 da correggere, %2 con attenzione.</source>
        <translation>Contrôle terminé&#xa0;: %1 à corriger, %2 avec attention.</translation>
    </message>
    <message>
        <source>Controllo interrotto.</source>
        <translation>Contrôle interrompu.</translation>
    </message>
    <message>
        <source>L&apos;indirizzo email dell&apos;account non è valido.</source>
        <translation>L&apos;adresse e-mail du compte n&apos;est pas valide.</translation>
    </message>
    <message>
        <source>Creare una chiave DKIM per %1?<byte value="xd"/>
Da quel momento i messaggi di questo dominio vengono firmati; la firma vale quando il suo record è pubblicato.</source>
        <translation>Créer une clé DKIM pour %1&#xa0;?<byte value="xd"/>
Dès lors, les messages de ce domaine sont signés&#xa0;; la signature vaut une fois son enregistrement publié.</translation>
    </message>
    <message>
        <source>Chiave DKIM</source>
        <translation>Clé DKIM</translation>
    </message>
    <message>
        <source>I file della chiave non sono stati cambiati.</source>
        <translation>Les fichiers de la clé n&apos;ont pas été modifiés.</translation>
    </message>
    <message>
        <source>Il rapporto è negli appunti.</source>
        <translation>Le rapport est dans le presse-papiers.</translation>
    </message>
    <message>
        <source>&amp;Account mittente:</source>
        <translation>&amp;Compte expéditeur&#xa0;:</translation>
    </message>
    <message>
        <source>C&amp;ontrolla</source>
        <translation>&amp;Vérifier</translation>
    </message>
    <message>
        <source>&amp;Interrompi</source>
        <translation>&amp;Interrompre</translation>
    </message>
    <message>
        <source>Controllo</source>
        <translation>Contrôle</translation>
    </message>
    <message>
        <source>Che cosa fare</source>
        <translation>Que faire</translation>
    </message>
    <message>
        <source>Righe del controllo</source>
        <translation>Lignes du contrôle</translation>
    </message>
    <message>
        <source>D&amp;ettagli:</source>
        <translation>&amp;Détails&#xa0;:</translation>
    </message>
    <message>
        <source>Crea chiave &amp;DKIM...</source>
        <translation>Créer une clé D&amp;KIM...</translation>
    </message>
    <message>
        <source>Copia &amp;tutto</source>
        <translation>&amp;Tout copier</translation>
    </message>
    <message>
        <source>Crea la chiave con cui firmare i messaggi, o mostra quella che c&apos;è</source>
        <translation>Crée la clé pour signer les messages, ou montre celle qui existe</translation>
    </message>
    <message>
        <source>database </source>
        <translation>base de données </translation>
    </message>
    <message>
        <source> Esito degli invii</source>
        <translation> Résultat des envois</translation>
    </message>
    <message>
        <source>Invio</source>
        <translation>Envoi</translation>
    </message>
    <message>
        <source>&amp;Elimina</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Elimina &amp;tutti</source>
        <translation>&amp;Tout supprimer</translation>
    </message>
    <message>
        <source>Indirizzo o risposta</source>
        <translation>Adresse ou réponse</translation>
    </message>
    <message>
        <source>Destinatari dell&apos;invio</source>
        <translation>Destinataires de l&apos;envoi</translation>
    </message>
    <message>
        <source>&amp;Registra l&apos;esito dei prossimi invii</source>
        <translation>&amp;Enregistrer le résultat des prochains envois</translation>
    </message>
    <message>
        <source>Restano gli ultimi 50 invii, nella cartella &quot;esiti&quot; dei dati del programma</source>
        <translation>Les 50 derniers envois sont conservés, dans le dossier «&#xa0;esiti&#xa0;» des données du programme</translation>
    </message>
    <message>
        <source>&amp;Seleziona questi per il prossimo invio</source>
        <translation>Sélectionner &amp;ceux-ci pour le prochain envoi</translation>
    </message>
    <message>
        <source>C&amp;opia</source>
        <translation>C&amp;opier</translation>
    </message>
    <message>
        <source>Sal&amp;va CSV...</source>
        <translation>Enregistrer en CS&amp;V...</translation>
    </message>
    <message>
        <source>&amp;Deseleziona gli indirizzi inesistenti</source>
        <translation>&amp;Désélectionner les adresses inexistantes</translation>
    </message>
    <message>
        <source>Quelli che il server del destinatario ha rifiutato come inesistenti
(codici 5.1.1, 5.1.2, 5.1.3, 5.1.6 e 5.1.10)</source>
        <translation>Celles que le serveur du destinataire a refusées comme inexistantes
(codes 5.1.1, 5.1.2, 5.1.3, 5.1.6 et 5.1.10)</translation>
    </message>
    <message>
        <source>I&amp;nvio:</source>
        <translation>E&amp;nvoi&#xa0;:</translation>
    </message>
    <message>
        <source>Es&amp;ito:</source>
        <translation>&amp;Résultat&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Motivo:</source>
        <translation>&amp;Motif&#xa0;:</translation>
    </message>
    <message>
        <source>Trov&amp;a:</source>
        <translation>Rec&amp;hercher&#xa0;:</translation>
    </message>
    <message>
        <source>Tutti</source>
        <translation>Tous</translation>
    </message>
    <message>
        <source>Nessun invio registrato. L&apos;esito di ogni destinatario compare qui dopo il prossimo invio.</source>
        <translation>Aucun envoi enregistré. Le résultat de chaque destinataire apparaît ici après le prochain envoi.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln destinatari.</source>
        <translation>
            <numerusform>%Ln destinataire.</numerusform>
            <numerusform>%Ln destinataires.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 di %2 destinatari.</source>
        <translation>%1 sur %2 destinataires.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln righe del registro sono rovinate e non vengono mostrate.</source>
        <translation>
            <numerusform>Une ligne du journal est endommagée et n&apos;est pas affichée.</numerusform>
            <numerusform>%Ln lignes du journal sont endommagées et ne sont pas affichées.</numerusform>
        </translation>
    </message>
    <message>
        <source>Il registro si interrompe a metà di una riga: il programma è terminato durante l&apos;invio.</source>
        <translation>Le journal s&apos;interrompt au milieu d&apos;une ligne&#xa0;: le programme s&apos;est terminé pendant l&apos;envoi.</translation>
    </message>
    <message>
        <source>L&apos;invio è di un altro database: la selezione non si può cambiare da qui.</source>
        <translation>L&apos;envoi est d&apos;une autre base de données&#xa0;: la sélection ne peut être changée d&apos;ici.</translation>
    </message>
    <message>
        <source>Salva l&apos;esito dell&apos;invio</source>
        <translation>Enregistrer le résultat de l&apos;envoi</translation>
    </message>
    <message>
        <source>File CSV (*.csv)|*.csv|</source>
        <translation>Fichier CSV (*.csv)|*.csv|</translation>
    </message>
    <message>
        <source>Il file non si può scrivere:</source>
        <translation>Impossible d&apos;écrire le fichier&#xa0;:</translation>
    </message>
    <message numerus="yes">
        <source>%Ln di questi destinatari hanno già ricevuto il messaggio.</source>
        <translation>
            <numerusform>Un de ces destinataires a déjà reçu le message.</numerusform>
            <numerusform>%Ln de ces destinataires ont déjà reçu le message.</numerusform>
        </translation>
    </message>
    <message>
        <source>Selezionarli tutti lo stesso?</source>
        <translation>Les sélectionner tous quand même&#xa0;?</translation>
    </message>
    <message>
        <source>In questo invio nessun indirizzo è risultato inesistente.</source>
        <translation>Dans cet envoi, aucune adresse ne s&apos;est révélée inexistante.</translation>
    </message>
    <message>
        <source>In questo invio %1 destinatari su %2 risultano inesistenti.<byte value="xd"/>
Quando sono più della metà la causa è spesso un&apos;altra: un server che rifiuta ogni destinatario, o il mittente bloccato.<byte value="xd"/>
Deselezionarli lo stesso?</source>
        <translation>Dans cet envoi, %1 destinataires sur %2 se révèlent inexistants.<byte value="xd"/>
Quand c&apos;est plus de la moitié, la cause est souvent autre&#xa0;: un serveur qui refuse tout destinataire, ou l&apos;expéditeur bloqué.<byte value="xd"/>
Les désélectionner quand même&#xa0;?</translation>
    </message>
    <message>
        <source>La selezione non si può cambiare:</source>
        <translation>La sélection ne peut être changée&#xa0;:</translation>
    </message>
    <message numerus="yes">
        <source>%Ln destinatari sono stati selezionati.</source>
        <translation>
            <numerusform>Un destinataire a été sélectionné.</numerusform>
            <numerusform>%Ln destinataires ont été sélectionnés.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln destinatari sono stati deselezionati.</source>
        <translation>
            <numerusform>Un destinataire a été désélectionné.</numerusform>
            <numerusform>%Ln destinataires ont été désélectionnés.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln lo erano già.</source>
        <translation>
            <numerusform>Un l&apos;était déjà.</numerusform>
            <numerusform>%Ln l&apos;étaient déjà.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln non sono stati toccati: non ci sono più, o il loro indirizzo è cambiato.</source>
        <translation>
            <numerusform>Un n&apos;a pas été touché&#xa0;: il n&apos;existe plus, ou son adresse a changé.</numerusform>
            <numerusform>%Ln n&apos;ont pas été touchés&#xa0;: ils n&apos;existent plus, ou leur adresse a changé.</numerusform>
        </translation>
    </message>
    <message>
        <source>Eliminare il registro di questo invio?<byte value="xd"/>
I destinatari restano come sono.</source>
        <translation>Supprimer le journal de cet envoi&#xa0;?<byte value="xd"/>
Les destinataires restent tels quels.</translation>
    </message>
    <message>
        <source>Eliminare il registro di tutti gli invii?<byte value="xd"/>
I destinatari restano come sono.</source>
        <translation>Supprimer le journal de tous les envois&#xa0;?<byte value="xd"/>
Les destinataires restent tels quels.</translation>
    </message>
    <message>
        <source> Prova messaggio</source>
        <translation> Essai du message</translation>
    </message>
    <message>
        <source>File messaggio:</source>
        <translation>Fichier du message&#xa0;:</translation>
    </message>
    <message>
        <source>Destinatario:</source>
        <translation>Destinataire&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Precedente</source>
        <translation>&amp;Précédent</translation>
    </message>
    <message>
        <source>&amp;Successivo</source>
        <translation>&amp;Suivant</translation>
    </message>
    <message>
        <source>Cerca:</source>
        <translation>Rechercher&#xa0;:</translation>
    </message>
    <message>
        <source>Ce&amp;rca</source>
        <translation>&amp;Rechercher</translation>
    </message>
    <message>
        <source>Oggetto:</source>
        <translation>Objet&#xa0;:</translation>
    </message>
    <message>
        <source>Rilievi:</source>
        <translation>Remarques&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Vai al primo</source>
        <translation>Aller au pre&amp;mier</translation>
    </message>
    <message>
        <source>Account mittente:</source>
        <translation>Compte expéditeur&#xa0;:</translation>
    </message>
    <message>
        <source>Indirizzo della prova:</source>
        <translation>Adresse de l&apos;essai&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Invia una copia di prova</source>
        <translation>&amp;Envoyer une copie d&apos;essai</translation>
    </message>
    <message>
        <source>Solo testo</source>
        <translation>Texte seul</translation>
    </message>
    <message>
        <source>Il messaggio come lo vede il destinatario</source>
        <translation>Le message tel que le voit le destinataire</translation>
    </message>
    <message>
        <source>Il messaggio come lo legge chi non vede l&apos;HTML</source>
        <translation>Le message tel que le lit qui ne voit pas le HTML</translation>
    </message>
    <message>
        <source>Cerca il destinatario</source>
        <translation>Rechercher le destinataire</translation>
    </message>
    <message>
        <source>Messaggio in HTML</source>
        <translation>Message en HTML</translation>
    </message>
    <message>
        <source>Messaggio di solo testo</source>
        <translation>Message en texte seul</translation>
    </message>
    <message>
        <source>Forme del messaggio</source>
        <translation>Formes du message</translation>
    </message>
    <message>
        <source>Mostra il messaggio del destinatario selezionato precedente</source>
        <translation>Affiche le message du destinataire sélectionné précédent</translation>
    </message>
    <message>
        <source>Mostra il messaggio del destinatario selezionato successivo</source>
        <translation>Affiche le message du destinataire sélectionné suivant</translation>
    </message>
    <message>
        <source>Interrompe l&apos;invio della copia di prova</source>
        <translation>Interrompt l&apos;envoi de la copie d&apos;essai</translation>
    </message>
    <message>
        <source>Mostra il primo destinatario di questo rilievo</source>
        <translation>Affiche le premier destinataire de cette remarque</translation>
    </message>
    <message>
        <source>Apri messaggio</source>
        <translation>Ouvrir un message</translation>
    </message>
    <message>
        <source>Nessun messaggio: salvarne uno nell&apos;editor o sceglierlo con il pulsante &quot;...&quot;.</source>
        <translation>Aucun message&#xa0;: enregistrez-en un dans l&apos;éditeur ou choisissez-le avec le bouton «&#xa0;...&#xa0;».</translation>
    </message>
    <message>
        <source>I destinatari non si possono leggere: %1</source>
        <translation>Impossible de lire les destinataires&#xa0;: %1</translation>
    </message>
    <message>
        <source>Nessun destinatario è selezionato: il messaggio si vede con i suoi segnaposto.</source>
        <translation>Aucun destinataire sélectionné&#xa0;: le message se voit avec ses variables.</translation>
    </message>
    <message>
        <source>Questa copia non si può mostrare: %1</source>
        <translation>Impossible d&apos;afficher cette copie&#xa0;: %1</translation>
    </message>
    <message>
        <source>non c&apos;è</source>
        <translation>absente</translation>
    </message>
    <message>
        <source>Nessun allegato.</source>
        <translation>Aucune pièce jointe.</translation>
    </message>
    <message>
        <source>Allegati: %1.</source>
        <translation>Pièces jointes&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Dimensione non nota: manca l&apos;account mittente.</source>
        <translation>Taille inconnue&#xa0;: le compte expéditeur manque.</translation>
    </message>
    <message>
        <source>Il messaggio non può partire: %1</source>
        <translation>Le message ne peut partir&#xa0;: %1</translation>
    </message>
    <message>
        <source>Messaggio intero: %1.</source>
        <translation>Message entier&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Ricerca in corso…</source>
        <translation>Recherche en cours…</translation>
    </message>
    <message>
        <source>Nessun destinatario selezionato contiene &quot;%1&quot;.</source>
        <translation>Aucun destinataire sélectionné ne contient «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Scegliere un messaggio prima di inviare la prova.</source>
        <translation>Choisissez un message avant d&apos;envoyer l&apos;essai.</translation>
    </message>
    <message>
        <source>Nessun account: crearne uno con il comando &quot;Imposta Account&quot;.</source>
        <translation>Aucun compte&#xa0;: créez-en un avec la commande «&#xa0;Configurer les comptes&#xa0;».</translation>
    </message>
    <message>
        <source>L&apos;indirizzo della prova non è valido.</source>
        <translation>L&apos;adresse de l&apos;essai n&apos;est pas valide.</translation>
    </message>
    <message>
        <source>La prova non è stata inviata.</source>
        <translation>L&apos;essai n&apos;a pas été envoyé.</translation>
    </message>
    <message>
        <source>Invio della prova a %1… Esc per interrompere.</source>
        <translation>Envoi de l&apos;essai à %1… Échap pour interrompre.</translation>
    </message>
    <message>
        <source>La copia di prova porta con sé questi file di questo computer.<byte value="xd"/>
Vuoi inviarli?</source>
        <translation>La copie d&apos;essai emporte ces fichiers de cet ordinateur.<byte value="xd"/>
Voulez-vous les envoyer&#xa0;?</translation>
    </message>
    <message>
        <source>La prova non è stata consegnata. Invio interrotto.</source>
        <translation>L&apos;essai n&apos;a pas été remis. Envoi interrompu.</translation>
    </message>
    <message>
        <source>La prova è stata accettata dal server per %1.</source>
        <translation>Le serveur a accepté l&apos;essai pour %1.</translation>
    </message>
    <message>
        <source>La prova non è stata consegnata.</source>
        <translation>L&apos;essai n&apos;a pas été remis.</translation>
    </message>
    <message>
        <source>Il server ha risposto: %1</source>
        <translation>Le serveur a répondu&#xa0;: %1</translation>
    </message>
    <message>
        <source>I campi dei destinatari non si possono controllare: %1</source>
        <translation>Impossible de contrôler les champs des destinataires&#xa0;: %1</translation>
    </message>
    <message>
        <source>Rilievi (controllo dei destinatari in corso):</source>
        <translation>Remarques (contrôle des destinataires en cours)&#xa0;:</translation>
    </message>
    <message>
        <source>Rilievi: nessuno</source>
        <translation>Remarques&#xa0;: aucune</translation>
    </message>
    <message>
        <source>Rilievi: %1</source>
        <translation>Remarques&#xa0;: %1</translation>
    </message>
    <message>
        <source>Dall&apos;avvio del programma non è stata fatta nessuna importazione.</source>
        <translation>Aucune importation n&apos;a été faite depuis le démarrage du programme.</translation>
    </message>
    <message>
        <source>Da %1, %2.
Importate %3, rifiutate %4.</source>
        <translation>De %1, %2.
Importées %3, refusées %4.</translation>
    </message>
    <message>
        <source>Nel database ne sono rimaste %1: le ultime non sono state scritte.</source>
        <translation>Il en est resté %1 dans la base de données&#xa0;: les dernières n&apos;ont pas été écrites.</translation>
    </message>
    <message>
        <source>L&apos;elenco ha le prime %1 righe importate e le prime %1 rifiutate.</source>
        <translation>La liste a les %1 premières lignes importées et les %1 premières refusées.</translation>
    </message>
    <message>
        <source>Righe rifiutate</source>
        <translation>Lignes refusées</translation>
    </message>
    <message>
        <source>Righe importate</source>
        <translation>Lignes importées</translation>
    </message>
    <message>
        <source>Tutte le righe</source>
        <translation>Toutes les lignes</translation>
    </message>
    <message>
        <source>Co&amp;pia</source>
        <translation>Co&amp;pier</translation>
    </message>
    <message>
        <source>Ultima importazione</source>
        <translation>Dernière importation</translation>
    </message>
    <message>
        <source>Righe dell&apos;ultima importazione</source>
        <translation>Lignes de la dernière importation</translation>
    </message>
    <message>
        <source>Riga</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Testo</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>&amp;Mostra:</source>
        <translation>&amp;Afficher&#xa0;:</translation>
    </message>
    <message>
        <source>Importata</source>
        <translation>Importée</translation>
    </message>
    <message>
        <source>Rifiutata</source>
        <translation>Refusée</translation>
    </message>
    <message>
        <source>(cartella perduta)</source>
        <translation>(dossier perdu)</translation>
    </message>
    <message>
        <source>%1 (cartella perduta)</source>
        <translation>%1 (dossier perdu)</translation>
    </message>
    <message>
        <source>Indirizzi doppi</source>
        <translation>Adresses en double</translation>
    </message>
    <message>
        <source>Numero</source>
        <translation>Numéro</translation>
    </message>
    <message>
        <source>Con &quot;Sì&quot;</source>
        <translation>Avec «&#xa0;Oui&#xa0;»</translation>
    </message>
    <message>
        <source>Resta selezionato</source>
        <translation>Reste sélectionné</translation>
    </message>
    <message>
        <source>Viene deselezionato</source>
        <translation>Est désélectionné</translation>
    </message>
    <message numerus="yes">
        <source>%Ln indirizzi sono selezionati più di una volta.</source>
        <translation>
            <numerusform>%Ln adresse est sélectionnée plus d&apos;une fois.</numerusform>
            <numerusform>%Ln adresses sont sélectionnées plus d&apos;une fois.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Deselezionare i %Ln doppioni, uno escluso per indirizzo?</source>
        <translation>
            <numerusform>Désélectionner le doublon&#xa0;?</numerusform>
            <numerusform>Désélectionner les %Ln doublons, tous sauf un par adresse&#xa0;?</numerusform>
        </translation>
    </message>
    <message>
        <source>L&apos;elenco mostra i primi %1 destinatari.</source>
        <translation>La liste montre les %1 premiers destinataires.</translation>
    </message>
    <message>
        <source>Nessun indirizzo è selezionato più di una volta.</source>
        <translation>Aucune adresse n&apos;est sélectionnée plus d&apos;une fois.</translation>
    </message>
    <message>
        <source>Impossibile controllare gli indirizzi.</source>
        <translation>Impossible de contrôler les adresses.</translation>
    </message>
    <message>
        <source>Errore %1:<byte value="xd"/>
<byte value="xd"/>
%2</source>
        <translation>Erreur %1&#xa0;:<byte value="xd"/>
<byte value="xd"/>
%2</translation>
    </message>
    <message>
        <source>Ricerca del server di posta non riuscita: %1. Riprovare più tardi.</source>
        <translation>La recherche du serveur de messagerie a échoué&#xa0;: %1. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>file di testo </source>
        <translation>fichier texte </translation>
    </message>
    <message>
        <source>Ricerca di %1 nel DNS non riuscita: %2. Riprovare più tardi.</source>
        <translation>La recherche de %1 dans le DNS a échoué&#xa0;: %2. Réessayer plus tard.</translation>
    </message>
    <message>
        <source>il DNS risponde con il codice di errore %1</source>
        <translation>le DNS répond par le code d&apos;erreur %1</translation>
    </message>
    <message>
        <source>la risposta del DNS è danneggiata</source>
        <translation>la réponse du DNS est endommagée</translation>
    </message>
    <message>
        <source>la risposta del DNS ha troppi record</source>
        <translation>la réponse du DNS a trop d&apos;enregistrements</translation>
    </message>
    <message>
        <source>il DNS non risponde</source>
        <translation>le DNS ne répond pas</translation>
    </message>
    <message>
        <source>nessun server DNS è raggiungibile</source>
        <translation>aucun serveur DNS n&apos;est joignable</translation>
    </message>
    <message>
        <source>il DNS risponde con un guasto (SERVFAIL)</source>
        <translation>le DNS répond par une défaillance (SERVFAIL)</translation>
    </message>
    <message>
        <source>il DNS rifiuta la domanda (REFUSED)</source>
        <translation>le DNS refuse la question (REFUSED)</translation>
    </message>
    <message>
        <source>il DNS non conosce domande di questo tipo (NOTIMP)</source>
        <translation>le DNS ne connaît pas les questions de ce type (NOTIMP)</translation>
    </message>
    <message>
        <source>il DNS non capisce la domanda (FORMERR)</source>
        <translation>le DNS ne comprend pas la question (FORMERR)</translation>
    </message>
    <message>
        <source>il DNS ha dato una risposta che non si può usare</source>
        <translation>le DNS a donné une réponse inutilisable</translation>
    </message>
    <message>
        <source>il DNS di questo computer non è impostato</source>
        <translation>le DNS de cet ordinateur n&apos;est pas configuré</translation>
    </message>
    <message>
        <source>Ricerca non riuscita: questa cartella non si può leggere</source>
        <translation>La recherche a échoué&#xa0;: ce dossier ne peut pas être lu</translation>
    </message>
    <message>
        <source>Trovati: %1. Il database è usato da un altro programma: la ricerca riprende quando è libero.</source>
        <translation>Trouvés&#xa0;: %1. Un autre programme utilise la base de données&#xa0;: la recherche reprend quand elle est libre.</translation>
    </message>
    <message>
        <source>; questa cartella non si può leggere</source>
        <translation>&#xa0;; ce dossier ne peut pas être lu</translation>
    </message>
    <message>
        <source>La prova può essere stata consegnata: il server ha ricevuto tutto il messaggio e non ha risposto.</source>
        <translation>L&apos;essai a peut-être été remis&#xa0;: le serveur a reçu tout le message et n&apos;a pas répondu.</translation>
    </message>
    <message>
        <source>Non c&apos;è nessuna rubrica.</source>
        <translation>Il n&apos;y a pas de carnet d&apos;adresses.</translation>
    </message>
    <message>
        <source>Lettura interrotta.</source>
        <translation>Lecture interrompue.</translation>
    </message>
    <message>
        <source>Il lettore di Outlook non c&apos;è.</source>
        <translation>Le lecteur d&apos;Outlook manque.</translation>
    </message>
    <message>
        <source>Outlook non ha risposto in tempo.</source>
        <translation>Outlook n&apos;a pas répondu à temps.</translation>
    </message>
    <message>
        <source>I contatti di Outlook non sono leggibili.</source>
        <translation>Les contacts Outlook sont illisibles.</translation>
    </message>
    <message>
        <source>La rubrica non è leggibile.</source>
        <translation>Le carnet d&apos;adresses est illisible.</translation>
    </message>
    <message>
        <source>Impossibile leggere la rubrica.</source>
        <translation>Impossible de lire le carnet d&apos;adresses.</translation>
    </message>
    <message>
        <source>La rubrica cambia di continuo.</source>
        <translation>Le carnet d&apos;adresses change sans cesse.</translation>
    </message>
    <message>
        <source>La rubrica non esiste.</source>
        <translation>Le carnet d&apos;adresses n&apos;existe pas.</translation>
    </message>
    <message>
        <source>Il corpo del messaggio non si può aprire: </source>
        <translation>Impossible d&apos;ouvrir le corps du message&#xa0;: </translation>
    </message>
    <message>
        <source>è troppo grande (più di %1 milioni di caratteri).</source>
        <translation>il est trop gros (plus de %1 millions de caractères).</translation>
    </message>
    <message>
        <source>ha troppi elementi (più di %1).</source>
        <translation>il a trop d&apos;éléments (plus de %1).</translation>
    </message>
    <message>
        <source>un elemento ha troppi attributi (più di %1).</source>
        <translation>un élément a trop d&apos;attributs (plus de %1).</translation>
    </message>
    <message>
        <source>ha troppi elementi uno dentro l&apos;altro (più di %1).</source>
        <translation>il a trop d&apos;éléments imbriqués (plus de %1).</translation>
    </message>
    <message>
        <source>il suo codice HTML è troppo intricato.</source>
        <translation>son code HTML est trop embrouillé.</translation>
    </message>
    <message>
        <source>Impossibile mostrare il messaggio. Il testo è conservato.</source>
        <translation>Impossible d&apos;afficher le message. Le texte est conservé.</translation>
    </message>
    <message>
        <source>Impossibile caricare la vista dei messaggi: %1</source>
        <translation>Impossible de charger la vue des messages&#xa0;: %1</translation>
    </message>
    <message>
        <source>Impossibile stampare il messaggio.</source>
        <translation>Impossible d&apos;imprimer le message.</translation>
    </message>
    <message>
        <source>Impossibile scrivere %1: %2</source>
        <translation>Impossible d&apos;écrire %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>La stampante non ha preso il messaggio. %1</source>
        <translation>L&apos;imprimante n&apos;a pas pris le message. %1</translation>
    </message>
    <message>
        <source>La vista del messaggio non risponde.</source>
        <translation>La vue du message ne répond pas.</translation>
    </message>
    <message>
        <source>Il browser non ha dato alcuna risposta in tempo.</source>
        <translation>Le navigateur n&apos;a pas répondu à temps.</translation>
    </message>
    <message>
        <source>Per %1 manca il client_id: va scritto nel file %2, dopo aver registrato il programma presso il fornitore.</source>
        <translation>Il manque le client_id de %1&#xa0;: écrivez-le dans le fichier %2 après avoir enregistré le programme auprès du fournisseur.</translation>
    </message>
    <message>
        <source>Il consenso non è stato dato.</source>
        <translation>Le consentement n&apos;a pas été donné.</translation>
    </message>
    <message>
        <source>Il fornitore ha rifiutato la richiesta: %1</source>
        <translation>Le fournisseur a refusé la demande&#xa0;: %1</translation>
    </message>
    <message>
        <source>Il fornitore non accetta la risposta del browser: riprovare.</source>
        <translation>Le fournisseur n&apos;accepte pas la réponse du navigateur&#xa0;: réessayez.</translation>
    </message>
    <message>
        <source>Manca il file %1.</source>
        <translation>Le fichier %1 manque.</translation>
    </message>
    <message>
        <source>Impossibile leggere il file %1: %2.</source>
        <translation>Impossible de lire le fichier %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>non è un elenco</source>
        <translation>n&apos;est pas une liste</translation>
    </message>
    <message>
        <source>l&apos;elenco è vuoto</source>
        <translation>la liste est vide</translation>
    </message>
    <message>
        <source>una voce è vuota</source>
        <translation>une entrée est vide</translation>
    </message>
    <message>
        <source>non è un indirizzo</source>
        <translation>n&apos;est pas une adresse</translation>
    </message>
    <message>
        <source>deve cominciare con https://</source>
        <translation>doit commencer par https://</translation>
    </message>
    <message>
        <source>non può contenere né un utente né un frammento</source>
        <translation>ne peut contenir ni utilisateur ni fragment</translation>
    </message>
    <message>
        <source>non è un oggetto</source>
        <translation>n&apos;est pas un objet</translation>
    </message>
    <message>
        <source> è del programma</source>
        <translation> appartient au programme</translation>
    </message>
    <message>
        <source>non è un testo</source>
        <translation>n&apos;est pas un texte</translation>
    </message>
    <message>
        <source>il testo è troppo lungo o contiene caratteri non ammessi</source>
        <translation>le texte est trop long ou contient des caractères non admis</translation>
    </message>
    <message>
        <source>una voce contiene caratteri non ammessi</source>
        <translation>une entrée contient des caractères non admis</translation>
    </message>
    <message>
        <source>una voce non è il nome di un server</source>
        <translation>une entrée n&apos;est pas le nom d&apos;un serveur</translation>
    </message>
    <message>
        <source>sono ammessi solo 127.0.0.1, localhost e [::1]</source>
        <translation>seuls 127.0.0.1, localhost et [::1] sont admis</translation>
    </message>
    <message>
        <source>Il file %1 non è valido: %2.</source>
        <translation>Le fichier %1 n&apos;est pas valide&#xa0;: %2.</translation>
    </message>
    <message>
        <source>non contiene un oggetto</source>
        <translation>il ne contient pas d&apos;objet</translation>
    </message>
    <message>
        <source>non è JSON dal byte %1</source>
        <translation>ce n&apos;est pas du JSON à partir de l&apos;octet %1</translation>
    </message>
    <message>
        <source>il nome di un fornitore può contenere solo a-z, 0-9 e &quot;-&quot;</source>
        <translation>le nom d&apos;un fournisseur ne peut contenir que a-z, 0-9 et «&#xa0;-&#xa0;»</translation>
    </message>
    <message>
        <source> non è un oggetto</source>
        <translation> n&apos;est pas un objet</translation>
    </message>
    <message>
        <source> è scritto due volte</source>
        <translation> est écrit deux fois</translation>
    </message>
    <message>
        <source>Impossibile attendere la risposta del browser: %1</source>
        <translation>Impossible d&apos;attendre la réponse du navigateur&#xa0;: %1</translation>
    </message>
    <message>
        <source>Richiesta non valida.</source>
        <translation>Demande non valide.</translation>
    </message>
    <message>
        <source>Pagina inesistente.</source>
        <translation>Page inexistante.</translation>
    </message>
    <message>
        <source>Questa risposta non appartiene all&apos;accesso in corso.</source>
        <translation>Cette réponse n&apos;appartient pas à la connexion en cours.</translation>
    </message>
    <message>
        <source>Risposta ricevuta: si può chiudere questa pagina e tornare a Vestrola.</source>
        <translation>Réponse reçue&#xa0;: vous pouvez fermer cette page et revenir à Vestrola.</translation>
    </message>
    <message>
        <source>L&apos;accesso non è stato concesso: si può chiudere questa pagina.</source>
        <translation>La connexion n&apos;a pas été accordée&#xa0;: vous pouvez fermer cette page.</translation>
    </message>
    <message>
        <source>La risposta del fornitore non è valida.</source>
        <translation>La réponse du fournisseur n&apos;est pas valide.</translation>
    </message>
    <message>
        <source>Il consenso è scaduto o è stato ritirato: nella finestra degli account accedere di nuovo con il browser.</source>
        <translation>Le consentement a expiré ou a été retiré&#xa0;: reconnectez-vous avec le navigateur dans la fenêtre des comptes.</translation>
    </message>
    <message>
        <source>Il fornitore non riconosce client_id o client_secret: %1</source>
        <translation>Le fournisseur ne reconnaît pas client_id ou client_secret&#xa0;: %1</translation>
    </message>
    <message>
        <source>Il consenso dato non comprende l&apos;invio della posta.</source>
        <translation>Le consentement donné ne comprend pas l&apos;envoi de courrier.</translation>
    </message>
    <message>
        <source>Impossibile leggere il file %1</source>
        <translation>Impossible de lire le fichier %1</translation>
    </message>
    <message>
        <source>Manca il consenso del fornitore: nella finestra degli account accedere con il browser.</source>
        <translation>Le consentement du fournisseur manque&#xa0;: connectez-vous avec le navigateur dans la fenêtre des comptes.</translation>
    </message>
    <message>
        <source>Il file %1 è un collegamento.</source>
        <translation>Le fichier %1 est un lien.</translation>
    </message>
    <message>
        <source>Il file %1 è danneggiato: nella finestra degli account accedere di nuovo con il browser.</source>
        <translation>Le fichier %1 est endommagé&#xa0;: reconnectez-vous avec le navigateur dans la fenêtre des comptes.</translation>
    </message>
    <message>
        <source>Impossibile scrivere il file %1.</source>
        <translation>Impossible d&apos;écrire le fichier %1.</translation>
    </message>
    <message>
        <source>Il fornitore non è raggiungibile: %1</source>
        <translation>Le fournisseur est injoignable&#xa0;: %1</translation>
    </message>
    <message>
        <source>tempo scaduto.</source>
        <translation>délai dépassé.</translation>
    </message>
    <message>
        <source>La risposta del fornitore è troppo grande.</source>
        <translation>La réponse du fournisseur est trop grosse.</translation>
    </message>
    <message>
        <source>Il fornitore rimanda a un altro indirizzo, che non viene seguito.</source>
        <translation>Le fournisseur renvoie à une autre adresse, qui n&apos;est pas suivie.</translation>
    </message>
    <message>
        <source>errore %1 del suo server.</source>
        <translation>erreur %1 de son serveur.</translation>
    </message>
    <message>
        <source>Il fornitore ha rifiutato la richiesta.</source>
        <translation>Le fournisseur a refusé la demande.</translation>
    </message>
    <message>
        <source>Il consenso è scaduto e il fornitore non permette di rinnovarlo: nella finestra degli account accedere di nuovo con il browser.</source>
        <translation>Le consentement a expiré et le fournisseur ne permet pas de le renouveler&#xa0;: reconnectez-vous avec le navigateur dans la fenêtre des comptes.</translation>
    </message>
    <message>
        <source>Il server %1 non appartiene a un fornitore del file %2: nessun token gli viene inviato.</source>
        <translation>Le serveur %1 n&apos;appartient pas à un fournisseur du fichier %2&#xa0;: aucun jeton ne lui est envoyé.</translation>
    </message>
    <message>
        <source>Il portachiavi del desktop non c&apos;è.</source>
        <translation>Il n&apos;y a pas de trousseau du bureau.</translation>
    </message>
    <message>
        <source>Attesa del portachiavi interrotta.</source>
        <translation>Attente du trousseau interrompue.</translation>
    </message>
    <message>
        <source>Il portachiavi non ha questa password.</source>
        <translation>Le trousseau n&apos;a pas ce mot de passe.</translation>
    </message>
    <message>
        <source>Il portachiavi non risponde: </source>
        <translation>Le trousseau ne répond pas&#xa0;: </translation>
    </message>
    <message>
        <source>Il portachiavi non conserva la password così com&apos;è.</source>
        <translation>Le trousseau ne conserve pas le mot de passe tel quel.</translation>
    </message>
    <message>
        <source>Non è un file</source>
        <translation>Pas un fichier</translation>
    </message>
    <message>
        <source>Il percorso è un collegamento</source>
        <translation>Le chemin est un lien</translation>
    </message>
    <message>
        <source>Il file appartiene a un altro utente</source>
        <translation>Le fichier appartient à un autre utilisateur</translation>
    </message>
    <message>
        <source>Il file può essere letto da altri utenti</source>
        <translation>D&apos;autres utilisateurs peuvent lire le fichier</translation>
    </message>
    <message>
        <source>Il percorso è un collegamento di un altro utente</source>
        <translation>Le chemin est un lien d&apos;un autre utilisateur</translation>
    </message>
    <message>
        <source>Il file è in uso</source>
        <translation>Le fichier est utilisé</translation>
    </message>
    <message>
        <source>%1 è un collegamento di un altro utente</source>
        <translation>%1 est un lien d&apos;un autre utilisateur</translation>
    </message>
    <message>
        <source>altri utenti possono %1 %2: deve essere un file dell&apos;utente con i permessi %3</source>
        <translation>d&apos;autres utilisateurs peuvent %1 %2&#xa0;: ce doit être un fichier de l&apos;utilisateur avec les droits %3</translation>
    </message>
    <message>
        <source>leggere o scrivere</source>
        <translation>lire ou écrire</translation>
    </message>
    <message>
        <source>scrivere</source>
        <translation>écrire</translation>
    </message>
    <message>
        <source>Impossibile scrivere il file </source>
        <translation>Impossible d&apos;écrire le fichier </translation>
    </message>
    <message>
        <source>Impossibile preparare la cartella </source>
        <translation>Impossible de préparer le dossier </translation>
    </message>
    <message>
        <source>Impossibile aprire </source>
        <translation>Impossible d&apos;ouvrir </translation>
    </message>
    <message>
        <source>Un comando non può eseguire una SELECT.</source>
        <translation>Une commande ne peut pas exécuter de SELECT.</translation>
    </message>
    <message>
        <source>Tempo scaduto.</source>
        <translation>Délai dépassé.</translation>
    </message>
    <message>
        <source>Formato della stringa di connessione non valido.</source>
        <translation>Format de la chaîne de connexion non valide.</translation>
    </message>
    <message>
        <source>Impossibile trovare il provider &quot;%1&quot;.</source>
        <translation>Fournisseur «&#xa0;%1&#xa0;» introuvable.</translation>
    </message>
    <message>
        <source>Nessun file di database indicato.</source>
        <translation>Aucun fichier de base de données n&apos;est indiqué.</translation>
    </message>
    <message>
        <source>Tipo di dati non corrispondente nel campo &quot;%1&quot;.</source>
        <translation>Type de données incompatible dans le champ «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Valore troppo grande per il campo &quot;%1&quot;.</source>
        <translation>La valeur est trop grande pour le champ «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>L&apos;istruzione non è una INSERT di valori.</source>
        <translation>L&apos;instruction n&apos;est pas un INSERT de valeurs.</translation>
    </message>
    <message>
        <source>L&apos;identità di un record non può essere scelta.</source>
        <translation>L&apos;identité d&apos;un enregistrement ne peut pas être choisie.</translation>
    </message>
    <message>
        <source>Il record è stato eliminato.</source>
        <translation>L&apos;enregistrement a été supprimé.</translation>
    </message>
    <message>
        <source>Nessun record corrente.</source>
        <translation>Aucun enregistrement en cours.</translation>
    </message>
    <message>
        <source>Operazione non consentita se l&apos;oggetto è chiuso.</source>
        <translation>Opération non autorisée si l&apos;objet est fermé.</translation>
    </message>
    <message>
        <source>Il recordset corrente non supporta l&apos;aggiornamento.</source>
        <translation>Le recordset actuel ne prend pas en charge la mise à jour.</translation>
    </message>
    <message>
        <source>Impossibile trovare il campo &quot;%1&quot;.</source>
        <translation>Champ «&#xa0;%1&#xa0;» introuvable.</translation>
    </message>
    <message>
        <source>L&apos;origine di un recordset deve essere una SELECT.</source>
        <translation>La source d&apos;un recordset doit être un SELECT.</translation>
    </message>
    <message>
        <source>Errore interno del database: una riga ha perso il suo posto.</source>
        <translation>Erreur interne de la base de données&#xa0;: une ligne a perdu sa place.</translation>
    </message>
    <message>
        <source>Impossibile avviare il motore SQL.</source>
        <translation>Impossible de démarrer le moteur SQL.</translation>
    </message>
    <message>
        <source>La struttura del database è stata modificata.</source>
        <translation>La structure de la base de données a été modifiée.</translation>
    </message>
    <message>
        <source>Un&apos;altra istruzione è in attesa del database.</source>
        <translation>Une autre instruction attend la base de données.</translation>
    </message>
    <message>
        <source>Errore di sintassi nell&apos;istruzione SQL vicino a &quot;%1&quot;.</source>
        <translation>Erreur de syntaxe dans l&apos;instruction SQL près de «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Il numero dei valori non corrisponde al numero dei campi di destinazione.</source>
        <translation>Le nombre de valeurs ne correspond pas au nombre de champs de destination.</translation>
    </message>
    <message>
        <source>Istruzione SQL non ammessa.</source>
        <translation>Instruction SQL non admise.</translation>
    </message>
    <message>
        <source>Istruzione SQL non valida.</source>
        <translation>Instruction SQL non valide.</translation>
    </message>
    <message>
        <source>La tabella &quot;%1&quot; è riservata al sistema.</source>
        <translation>La table «&#xa0;%1&#xa0;» est réservée au système.</translation>
    </message>
    <message>
        <source>La tabella &quot;%1&quot; non può essere usata nelle istruzioni SQL.</source>
        <translation>La table «&#xa0;%1&#xa0;» n&apos;est pas utilisable dans les instructions SQL.</translation>
    </message>
    <message>
        <source>L&apos;istruzione non è una SELECT.</source>
        <translation>L&apos;instruction n&apos;est pas un SELECT.</translation>
    </message>
    <message>
        <source>L&apos;istruzione deve leggere tutte le colonne di una tabella.</source>
        <translation>L&apos;instruction doit lire toutes les colonnes d&apos;une table.</translation>
    </message>
    <message>
        <source>Il record è troppo lungo.</source>
        <translation>L&apos;enregistrement est trop long.</translation>
    </message>
    <message>
        <source>Troppi record per essere mostrati.</source>
        <translation>Trop d&apos;enregistrements à afficher.</translation>
    </message>
    <message>
        <source>carattere nullo</source>
        <translation>caractère nul</translation>
    </message>
    <message>
        <source>commento</source>
        <translation>commentaire</translation>
    </message>
    <message>
        <source>parametro</source>
        <translation>paramètre</translation>
    </message>
    <message>
        <source>virgolette fuori da un testo</source>
        <translation>guillemets hors d&apos;un texte</translation>
    </message>
    <message>
        <source>manca un apice di chiusura</source>
        <translation>il manque une apostrophe fermante</translation>
    </message>
    <message>
        <source>manca una parentesi quadra di chiusura</source>
        <translation>il manque un crochet fermant</translation>
    </message>
    <message>
        <source>manca un cancelletto di chiusura</source>
        <translation>il manque un dièse fermant</translation>
    </message>
    <message>
        <source>Istruzione SQL non ammessa: %1.</source>
        <translation>Instruction SQL non admise&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Errore di sintassi nell&apos;istruzione SQL: %1.</source>
        <translation>Erreur de syntaxe dans l&apos;instruction SQL&#xa0;: %1.</translation>
    </message>
    <message>
        <source>forma non prevista</source>
        <translation>forme non prévue</translation>
    </message>
    <message>
        <source>i valori da inserire non sono leggibili</source>
        <translation>les valeurs à insérer sont illisibles</translation>
    </message>
    <message>
        <source>la data #%1# non è valida</source>
        <translation>la date #%1# n&apos;est pas valide</translation>
    </message>
    <message>
        <source>testo troppo lungo</source>
        <translation>texte trop long</translation>
    </message>
    <message>
        <source>più di una istruzione</source>
        <translation>plus d&apos;une instruction</translation>
    </message>
    <message>
        <source>istruzione vuota</source>
        <translation>instruction vide</translation>
    </message>
    <message>
        <source>Il disco è pieno: il file &quot;%1&quot; non trova posto.</source>
        <translation>Le disque est plein&#xa0;: le fichier «&#xa0;%1&#xa0;» n&apos;a pas de place.</translation>
    </message>
    <message>
        <source>Impossibile aprire il file &quot;%1&quot;.</source>
        <translation>Impossible d&apos;ouvrir le fichier «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>L&apos;indirizzo di posta elettronica non è valido.</source>
        <translation>L&apos;adresse e-mail n&apos;est pas valide.</translation>
    </message>
    <message>
        <source>L&apos;allegato %1 %2.</source>
        <translation>La pièce jointe %1 %2.</translation>
    </message>
    <message>
        <source>non esiste</source>
        <translation>n&apos;existe pas</translation>
    </message>
    <message>
        <source>è troppo grande</source>
        <translation>est trop grosse</translation>
    </message>
    <message>
        <source>Il nome utente contiene un carattere non ammesso.</source>
        <translation>Le nom d&apos;utilisateur contient un caractère non admis.</translation>
    </message>
    <message>
        <source>non si può leggere</source>
        <translation>est illisible</translation>
    </message>
    <message>
        <source>non è il file che è stato confermato</source>
        <translation>n&apos;est pas le fichier qui a été confirmé</translation>
    </message>
    <message>
        <source>Invio interrotto.</source>
        <translation>Envoi interrompu.</translation>
    </message>
    <message>
        <source>Risposta in ritardo al messaggio di prima</source>
        <translation>Réponse tardive au message précédent</translation>
    </message>
    <message>
        <source>Il destinatario non è stato letto: nessun invio.</source>
        <translation>Le destinataire n&apos;a pas été lu&#xa0;: aucun envoi.</translation>
    </message>
    <message>
        <source>L&apos;invio è stato fermato: nessun invio fino al prossimo avvio.</source>
        <translation>L&apos;envoi a été arrêté&#xa0;: aucun envoi jusqu&apos;au prochain démarrage.</translation>
    </message>
    <message>
        <source>L&apos;indirizzo del destinatario non è stato letto: nessun invio.</source>
        <translation>L&apos;adresse du destinataire n&apos;a pas été lue&#xa0;: aucun envoi.</translation>
    </message>
    <message>
        <source>Il messaggio per questo destinatario è già stato accettato in questo invio.</source>
        <translation>Le message pour ce destinataire a déjà été accepté dans cet envoi.</translation>
    </message>
    <message>
        <source>Il messaggio per questo destinatario è già stato accettato.</source>
        <translation>Le message pour ce destinataire a déjà été accepté.</translation>
    </message>
    <message>
        <source>Non c&apos;è più spazio per ricordare i messaggi accettati.</source>
        <translation>Il n&apos;y a plus de place pour retenir les messages acceptés.</translation>
    </message>
    <message>
        <source>Il destinatario è stato selezionato di nuovo.</source>
        <translation>Le destinataire a été sélectionné de nouveau.</translation>
    </message>
    <message>
        <source>Il file %1 esiste già.</source>
        <translation>Le fichier %1 existe déjà.</translation>
    </message>
    <message>
        <source>Non è possibile scrivere il file %1.</source>
        <translation>Impossible d&apos;écrire le fichier %1.</translation>
    </message>
    <message>
        <source>La chiave non si può leggere.</source>
        <translation>Impossible de lire la clé.</translation>
    </message>
    <message>
        <source>Il dominio non è valido.</source>
        <translation>Le domaine n&apos;est pas valide.</translation>
    </message>
    <message>
        <source>Il dominio ha già una chiave o un selettore: %1.pem, %1.selector.</source>
        <translation>Le domaine a déjà une clé ou un sélecteur&#xa0;: %1.pem, %1.selector.</translation>
    </message>
    <message>
        <source>Non è possibile creare la cartella %1.</source>
        <translation>Impossible de créer le dossier %1.</translation>
    </message>
    <message>
        <source>La creazione della chiave non è riuscita.</source>
        <translation>La création de la clé a échoué.</translation>
    </message>
    <message>
        <source>Messaggio non firmato (DKIM): %1.</source>
        <translation>Message non signé (DKIM)&#xa0;: %1.</translation>
    </message>
    <message>
        <source>il selettore manca o non è valido</source>
        <translation>le sélecteur manque ou n&apos;est pas valide</translation>
    </message>
    <message>
        <source>la chiave manca o non è una chiave RSA</source>
        <translation>la clé manque ou n&apos;est pas une clé RSA</translation>
    </message>
    <message>
        <source>la chiave ha meno di %1 bit</source>
        <translation>la clé a moins de %1 bits</translation>
    </message>
    <message>
        <source>la firma non è riuscita</source>
        <translation>la signature a échoué</translation>
    </message>
    <message>
        <source>Il server non ha completato l&apos;autenticazione.</source>
        <translation>Le serveur n&apos;a pas terminé l&apos;authentification.</translation>
    </message>
    <message>
        <source>Il server non accetta il consenso di OAuth 2.0 per l&apos;utente %1: %2</source>
        <translation>Le serveur n&apos;accepte pas le consentement OAuth 2.0 de l&apos;utilisateur %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>La password non viene inviata in chiaro a %1, che non offre una connessione TLS. Per inviarla ugualmente scrivere il nome del server nel file %2.</source>
        <translation>Le mot de passe n&apos;est pas envoyé en clair à %1, qui n&apos;offre pas de connexion TLS. Pour l&apos;envoyer malgré tout, écrivez le nom du serveur dans le fichier %2.</translation>
    </message>
    <message>
        <source>Il server non offre l&apos;accesso con OAuth 2.0.</source>
        <translation>Le serveur n&apos;offre pas la connexion par OAuth 2.0.</translation>
    </message>
    <message>
        <source>Il server non offre un metodo di autenticazione conosciuto.</source>
        <translation>Le serveur n&apos;offre aucune méthode d&apos;authentification connue.</translation>
    </message>
    <message>
        <source>Il file &quot;%1&quot; non si può eliminare.</source>
        <translation>Impossible de supprimer le fichier «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>La cartella &quot;%1&quot; non si può creare.</source>
        <translation>Impossible de créer le dossier «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Il file &quot;%1&quot; non si può scrivere: %2</source>
        <translation>Impossible d&apos;écrire le fichier «&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>Autenticazione non riuscita: %1</source>
        <translation>Échec de l&apos;authentification&#xa0;: %1</translation>
    </message>
    <message>
        <source>Il nome utente o la password contengono un carattere non ammesso.</source>
        <translation>Le nom d&apos;utilisateur ou le mot de passe contient un caractère non admis.</translation>
    </message>
    <message>
        <source>Il server rifiuta il messaggio per le sue regole</source>
        <translation>Le serveur refuse le message selon ses règles</translation>
    </message>
    <message>
        <source>Il server limita il numero o la frequenza degli invii</source>
        <translation>Le serveur limite le nombre ou la fréquence des envois</translation>
    </message>
    <message>
        <source>Il server considera il messaggio posta indesiderata (spam)</source>
        <translation>Le serveur considère le message comme indésirable (spam)</translation>
    </message>
    <message>
        <source>%1, per ora, codice %2: %3</source>
        <translation>%1, pour l&apos;instant, code %2&#xa0;: %3</translation>
    </message>
    <message>
        <source>%1, codice %2: %3</source>
        <translation>%1, code %2&#xa0;: %3</translation>
    </message>
    <message>
        <source>Server %1 non trovato.</source>
        <translation>Serveur %1 introuvable.</translation>
    </message>
    <message>
        <source>Connessione rifiutata da %1, porta %2.</source>
        <translation>Connexion refusée par %1, port %2.</translation>
    </message>
    <message>
        <source>Il server ha chiuso la connessione.</source>
        <translation>Le serveur a fermé la connexion.</translation>
    </message>
    <message>
        <source>Errore di rete: %1</source>
        <translation>Erreur de réseau&#xa0;: %1</translation>
    </message>
    <message>
        <source>Il dominio del destinatario non ha un server di posta.</source>
        <translation>Le domaine du destinataire n&apos;a pas de serveur de messagerie.</translation>
    </message>
    <message>
        <source>Risposta del server non valida: %1</source>
        <translation>Réponse du serveur non valide&#xa0;: %1</translation>
    </message>
    <message>
        <source>Risposta del server inattesa: %1 %2</source>
        <translation>Réponse inattendue du serveur&#xa0;: %1 %2</translation>
    </message>
    <message>
        <source>Il server non offre più la connessione TLS, che ha offerto in passato. Per dimenticarlo cancellare la sua riga dal file %1.</source>
        <translation>Le serveur n&apos;offre plus la connexion TLS qu&apos;il a offerte par le passé. Pour l&apos;oublier, effacez sa ligne du fichier %1.</translation>
    </message>
    <message>
        <source>Il server non accetta indirizzi con caratteri internazionali.</source>
        <translation>Le serveur n&apos;accepte pas les adresses à caractères internationaux.</translation>
    </message>
    <message>
        <source>il certificato è autofirmato</source>
        <translation>le certificat est autosigné</translation>
    </message>
    <message>
        <source>il certificato è scaduto</source>
        <translation>le certificat a expiré</translation>
    </message>
    <message>
        <source>il certificato non è ancora valido</source>
        <translation>le certificat n&apos;est pas encore valable</translation>
    </message>
    <message>
        <source>il certificato è di un altro server</source>
        <translation>le certificat est celui d&apos;un autre serveur</translation>
    </message>
    <message>
        <source>l&apos;autorità che ha emesso il certificato non è attendibile</source>
        <translation>l&apos;autorité qui a émis le certificat n&apos;est pas fiable</translation>
    </message>
    <message>
        <source>Il server ha aggiunto testo in chiaro alla risposta a STARTTLS.</source>
        <translation>Le serveur a ajouté du texte en clair à la réponse à STARTTLS.</translation>
    </message>
    <message>
        <source>in chiaro</source>
        <translation>en clair</translation>
    </message>
    <message>
        <source>%1, %2, certificato %3</source>
        <translation>%1, %2, certificat %3</translation>
    </message>
    <message>
        <source>non verificato</source>
        <translation>non vérifié</translation>
    </message>
    <message>
        <source>valido</source>
        <translation>valable</translation>
    </message>
    <message>
        <source>Connessione TLS non riuscita: %1.</source>
        <translation>Échec de la connexion TLS&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Il token di OAuth 2.0 non viene inviato a %1: la connessione non è protetta da TLS con un certificato valido.</source>
        <translation>Le jeton OAuth 2.0 n&apos;est pas envoyé à %1&#xa0;: la connexion n&apos;est pas protégée par TLS avec un certificat valable.</translation>
    </message>
    <message>
        <source>Uso non valido di Null.</source>
        <translation>Utilisation incorrecte de Null.</translation>
    </message>
    <message>
        <source>Tipo non corrispondente.</source>
        <translation>Type incompatible.</translation>
    </message>
    <message>
        <source>Overflow.</source>
        <translation>Dépassement de capacité.</translation>
    </message>
    <message>
        <source>La tabella &quot;%1&quot; non ha un contatore.</source>
        <translation>La table «&#xa0;%1&#xa0;» n&apos;a pas de compteur.</translation>
    </message>
    <message>
        <source>Il contatore della tabella &quot;%1&quot; è esaurito.</source>
        <translation>Le compteur de la table «&#xa0;%1&#xa0;» est épuisé.</translation>
    </message>
    <message>
        <source>il catalogo non è leggibile</source>
        <translation>le catalogue est illisible</translation>
    </message>
    <message>
        <source>la pagina %1 non contiene righe</source>
        <translation>la page %1 ne contient pas de lignes</translation>
    </message>
    <message>
        <source>la pagina %1 ha troppe righe</source>
        <translation>la page %1 a trop de lignes</translation>
    </message>
    <message>
        <source>le righe della pagina %1 si sovrappongono</source>
        <translation>les lignes de la page %1 se chevauchent</translation>
    </message>
    <message>
        <source>la riga %1 della pagina %2 è fuori posto</source>
        <translation>la ligne %1 de la page %2 n&apos;est pas à sa place</translation>
    </message>
    <message>
        <source>la pagina %1 non ha posto</source>
        <translation>la page %1 n&apos;a pas de place</translation>
    </message>
    <message>
        <source>Password non valida.</source>
        <translation>Mot de passe incorrect.</translation>
    </message>
    <message>
        <source>il file &quot;%1&quot; è troncato</source>
        <translation>le fichier «&#xa0;%1&#xa0;» est tronqué</translation>
    </message>
    <message>
        <source>La tabella &quot;%1&quot; è collegata a un altro file.</source>
        <translation>La table «&#xa0;%1&#xa0;» est liée à un autre fichier.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; è una query, non una tabella.</source>
        <translation>«&#xa0;%1&#xa0;» est une requête, pas une table.</translation>
    </message>
    <message>
        <source>Impossibile trovare la tabella &quot;%1&quot;.</source>
        <translation>Table «&#xa0;%1&#xa0;» introuvable.</translation>
    </message>
    <message>
        <source>Nessuna transazione è in corso.</source>
        <translation>Aucune transaction n&apos;est en cours.</translation>
    </message>
    <message>
        <source>Impossibile scrivere nella cartella di &quot;%1&quot;.</source>
        <translation>Impossible d&apos;écrire dans le dossier de «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Il file &quot;%1&quot; è in uso da un altro programma.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» est utilisé par un autre programme.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; è il database aperto.</source>
        <translation>«&#xa0;%1&#xa0;» est la base de données ouverte.</translation>
    </message>
    <message>
        <source>la definizione della tabella a pagina %1 è incompleta</source>
        <translation>la définition de la table en page %1 est incomplète</translation>
    </message>
    <message>
        <source>un nome nella definizione della tabella a pagina %1 non è valido</source>
        <translation>un nom dans la définition de la table en page %1 n&apos;est pas valide</translation>
    </message>
    <message>
        <source>la definizione della tabella a pagina %1 ha due campi con il nome &quot;%2&quot;</source>
        <translation>la définition de la table en page %1 a deux champs du nom de «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>la pagina %1 non è la definizione di una tabella</source>
        <translation>la page %1 n&apos;est pas la définition d&apos;une table</translation>
    </message>
    <message>
        <source>la definizione della tabella a pagina %1 non finisce</source>
        <translation>la définition de la table en page %1 ne se termine pas</translation>
    </message>
    <message>
        <source>la definizione della tabella a pagina %1 non è leggibile</source>
        <translation>la définition de la table en page %1 est illisible</translation>
    </message>
    <message>
        <source>un campo della tabella a pagina %1 non ha posto nelle righe</source>
        <translation>un champ de la table en page %1 n&apos;a pas de place dans les lignes</translation>
    </message>
    <message>
        <source>un indice della tabella a pagina %1 non esiste</source>
        <translation>un index de la table en page %1 n&apos;existe pas</translation>
    </message>
    <message>
        <source>disco pieno</source>
        <translation>disque plein</translation>
    </message>
    <message>
        <source>lo spazio concesso all&apos;utente sul disco è esaurito</source>
        <translation>l&apos;espace disque accordé à l&apos;utilisateur est épuisé</translation>
    </message>
    <message>
        <source>il disco è di sola lettura</source>
        <translation>le disque est en lecture seule</translation>
    </message>
    <message>
        <source>permesso negato</source>
        <translation>permission refusée</translation>
    </message>
    <message>
        <source>il disco non riesce a leggere o scrivere</source>
        <translation>le disque n&apos;arrive pas à lire ou à écrire</translation>
    </message>
    <message>
        <source>il file supera la dimensione concessa</source>
        <translation>le fichier dépasse la taille permise</translation>
    </message>
    <message>
        <source>il nome è un collegamento</source>
        <translation>le nom est un lien</translation>
    </message>
    <message>
        <source>il file esiste già</source>
        <translation>le fichier existe déjà</translation>
    </message>
    <message>
        <source>è una cartella</source>
        <translation>c&apos;est un dossier</translation>
    </message>
    <message>
        <source>il file o la cartella non esiste</source>
        <translation>le fichier ou le dossier n&apos;existe pas</translation>
    </message>
    <message>
        <source>il nome è troppo lungo</source>
        <translation>le nom est trop long</translation>
    </message>
    <message>
        <source>troppi file aperti</source>
        <translation>trop de fichiers ouverts</translation>
    </message>
    <message>
        <source>memoria esaurita</source>
        <translation>mémoire épuisée</translation>
    </message>
    <message>
        <source>il disco non conosce questa operazione</source>
        <translation>le disque ne connaît pas cette opération</translation>
    </message>
    <message>
        <source>il disco non è più raggiungibile</source>
        <translation>le disque n&apos;est plus accessible</translation>
    </message>
    <message>
        <source>il file è in uso</source>
        <translation>le fichier est utilisé</translation>
    </message>
    <message>
        <source>errore di sistema %1</source>
        <translation>erreur système %1</translation>
    </message>
    <message>
        <source>Errore del disco (%1) sul file &quot;%2&quot;: %3.</source>
        <translation>Erreur du disque (%1) sur le fichier «&#xa0;%2&#xa0;»&#xa0;: %3.</translation>
    </message>
    <message>
        <source>Impossibile trovare il file &quot;%1&quot;.</source>
        <translation>Fichier «&#xa0;%1&#xa0;» introuvable.</translation>
    </message>
    <message>
        <source>Impossibile aprire il file &quot;%1&quot;: %2.</source>
        <translation>Impossible d&apos;ouvrir le fichier «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
    <message>
        <source>le tabelle nuove sono descritte male</source>
        <translation>les nouvelles tables sont mal décrites</translation>
    </message>
    <message>
        <source>le tabelle nuove sono troppe</source>
        <translation>les nouvelles tables sont trop nombreuses</translation>
    </message>
    <message>
        <source>una tabella nuova ha troppe colonne</source>
        <translation>une nouvelle table a trop de colonnes</translation>
    </message>
    <message>
        <source>un nome non ha chiave</source>
        <translation>un nom n&apos;a pas de clé</translation>
    </message>
    <message>
        <source>Il file &quot;%1&quot; esiste già.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» existe déjà.</translation>
    </message>
    <message>
        <source>Il database è danneggiato: %1.</source>
        <translation>La base de données est endommagée&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Errore interno del database: %1.</source>
        <translation>Erreur interne de la base de données&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Il database ha raggiunto la dimensione massima di 2 GB.</source>
        <translation>La base de données a atteint la taille maximale de 2 Go.</translation>
    </message>
    <message>
        <source>Il database &quot;%1&quot; è in uso da un altro programma.</source>
        <translation>La base de données «&#xa0;%1&#xa0;» est utilisée par un autre programme.</translation>
    </message>
    <message>
        <source>Il database &quot;%1&quot; è aperto in un altro programma (%2): non può essere modificato.</source>
        <translation>La base de données «&#xa0;%1&#xa0;» est ouverte dans un autre programme (%2)&#xa0;: elle ne peut pas être modifiée.</translation>
    </message>
    <message>
        <source>Formato di database non riconosciuto: %1.</source>
        <translation>Format de base de données non reconnu&#xa0;: %1.</translation>
    </message>
    <message>
        <source>il file non è un database Jet</source>
        <translation>le fichier n&apos;est pas une base de données Jet</translation>
    </message>
    <message>
        <source>è un file .accdb di Access 2007 o successivo; salvarlo in formato Access 2000-2003 (.mdb)</source>
        <translation>c&apos;est un fichier .accdb d&apos;Access 2007 ou ultérieur&#xa0;; enregistrez-le au format Access 2000-2003 (.mdb)</translation>
    </message>
    <message>
        <source>è di una versione più recente di Access 2003</source>
        <translation>il est d&apos;une version plus récente qu&apos;Access 2003</translation>
    </message>
    <message>
        <source>il file è troncato</source>
        <translation>le fichier est tronqué</translation>
    </message>
    <message>
        <source>è un file di Access 97 con una tabella codici diversa da quella occidentale (1252)</source>
        <translation>c&apos;est un fichier Access 97 dont la page de codes n&apos;est pas l&apos;occidentale (1252)</translation>
    </message>
    <message>
        <source>la pagina di indice %1 non è leggibile</source>
        <translation>la page d&apos;index %1 est illisible</translation>
    </message>
    <message>
        <source>la pagina di indice %1 è troppo piena</source>
        <translation>la page d&apos;index %1 est trop pleine</translation>
    </message>
    <message>
        <source>la pagina di indice %1 non ha un ultimo ramo</source>
        <translation>la page d&apos;index %1 n&apos;a pas de dernière branche</translation>
    </message>
    <message>
        <source>un indice di &quot;%1&quot; gira in tondo</source>
        <translation>un index de «&#xa0;%1&#xa0;» tourne en rond</translation>
    </message>
    <message>
        <source>un indice di &quot;%1&quot; contiene già la riga</source>
        <translation>un index de «&#xa0;%1&#xa0;» contient déjà la ligne</translation>
    </message>
    <message>
        <source>Le voci di un indice del database sono troppo lunghe per essere divise.</source>
        <translation>Les entrées d&apos;un index de la base de données sont trop longues pour être divisées.</translation>
    </message>
    <message>
        <source>la definizione di una tabella è incompleta</source>
        <translation>la définition d&apos;une table est incomplète</translation>
    </message>
    <message>
        <source>Il file &quot;%1&quot; non è un giornale di questo database: è un collegamento o appartiene a chi non può scrivere il database. Il database non viene aperto finché il file resta al suo posto.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» n&apos;est pas un journal de cette base de données&#xa0;: c&apos;est un lien, ou il appartient à quelqu&apos;un qui ne peut pas écrire la base de données. La base de données ne s&apos;ouvre pas tant que le fichier reste à sa place.</translation>
    </message>
    <message>
        <source>Troppi file &quot;%1&quot;.</source>
        <translation>Trop de fichiers «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Accanto al database c&apos;era un giornale di modifiche interrotte che non gli appartiene. Il database resta com&apos;è; il giornale è stato messo da parte come &quot;%1&quot;.</source>
        <translation>À côté de la base de données se trouvait un journal de modifications interrompues qui ne lui appartient pas. La base de données reste telle quelle&#xa0;; le journal a été mis de côté sous le nom «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>lettura</source>
        <translation>lecture</translation>
    </message>
    <message>
        <source>un indice di &quot;%1&quot; nomina un campo che non c&apos;è</source>
        <translation>un index de «&#xa0;%1&#xa0;» nomme un champ qui n&apos;existe pas</translation>
    </message>
    <message>
        <source>un valore del campo &quot;%1&quot; è troppo corto</source>
        <translation>une valeur du champ «&#xa0;%1&#xa0;» est trop courte</translation>
    </message>
    <message>
        <source>il campo &quot;%1&quot; non ha l&apos;ordinamento generale</source>
        <translation>le champ «&#xa0;%1&#xa0;» n&apos;a pas l&apos;ordre de tri général</translation>
    </message>
    <message>
        <source>il tipo del campo &quot;%1&quot; non è adatto a un indice</source>
        <translation>le type du champ «&#xa0;%1&#xa0;» ne convient pas à un index</translation>
    </message>
    <message>
        <source>non è su alcun campo</source>
        <translation>il ne porte sur aucun champ</translation>
    </message>
    <message>
        <source>Il testo del campo &quot;%1&quot; contiene il carattere %2, che non può stare nell&apos;indice &quot;%3&quot;.</source>
        <translation>Le texte du champ «&#xa0;%1&#xa0;» contient le caractère %2, que l&apos;index «&#xa0;%3&#xa0;» ne peut pas contenir.</translation>
    </message>
    <message>
        <source>I valori sono troppo lunghi per l&apos;indice &quot;%1&quot;.</source>
        <translation>Les valeurs sont trop longues pour l&apos;index «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>un campo memo non è leggibile</source>
        <translation>un champ mémo est illisible</translation>
    </message>
    <message>
        <source>Il database non ha posto per i testi lunghi di un campo memo.</source>
        <translation>La base de données n&apos;a pas de place pour les textes longs d&apos;un champ mémo.</translation>
    </message>
    <message>
        <source>scrittura</source>
        <translation>écriture</translation>
    </message>
    <message>
        <source>creazione</source>
        <translation>création</translation>
    </message>
    <message>
        <source>&quot;%1&quot; non è un file.</source>
        <translation>«&#xa0;%1&#xa0;» n&apos;est pas un fichier.</translation>
    </message>
    <message>
        <source>accorciamento</source>
        <translation>raccourcissement</translation>
    </message>
    <message>
        <source>prenotazione</source>
        <translation>réservation</translation>
    </message>
    <message>
        <source>sincronizzazione</source>
        <translation>synchronisation</translation>
    </message>
    <message>
        <source>Il file &quot;%1&quot; può essere letto o scritto da chi non può farlo con &quot;%2&quot;.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» peut être lu ou écrit par qui ne le peut pas avec «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>blocco</source>
        <translation>verrouillage</translation>
    </message>
    <message>
        <source>cancellazione</source>
        <translation>suppression</translation>
    </message>
    <message>
        <source>cambio di nome</source>
        <translation>changement de nom</translation>
    </message>
    <message>
        <source>%1 Accanto è rimasto il giornale delle sue ultime modifiche, &quot;%2&quot;, che viene conservato: rimettere il file al suo posto.</source>
        <translation>%1 À côté est resté le journal de ses dernières modifications, «&#xa0;%2&#xa0;», qui est conservé&#xa0;: remettez le fichier à sa place.</translation>
    </message>
    <message>
        <source>Il file &quot;%1&quot; supera la dimensione massima di un database, 2 GB.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» dépasse la taille maximale d&apos;une base de données, 2 Go.</translation>
    </message>
    <message>
        <source>la lunghezza del file non è quella di un database</source>
        <translation>la longueur du fichier n&apos;est pas celle d&apos;une base de données</translation>
    </message>
    <message>
        <source>manca la pagina %1</source>
        <translation>la page %1 manque</translation>
    </message>
    <message>
        <source>la pagina %1 è troncata</source>
        <translation>la page %1 est tronquée</translation>
    </message>
    <message>
        <source>Il database &quot;%1&quot; è di Access 97: può essere letto ma non modificato. Per modificarlo convertirlo in formato Access 2000-2003 (.mdb).</source>
        <translation>La base de données «&#xa0;%1&#xa0;» est d&apos;Access 97&#xa0;: elle peut être lue mais pas modifiée. Pour la modifier, convertissez-la au format Access 2000-2003 (.mdb).</translation>
    </message>
    <message>
        <source>Il database &quot;%1&quot; è di sola lettura.</source>
        <translation>La base de données «&#xa0;%1&#xa0;» est en lecture seule.</translation>
    </message>
    <message>
        <source>Una transazione è già in corso.</source>
        <translation>Une transaction est déjà en cours.</translation>
    </message>
    <message>
        <source>Il database &quot;%1&quot; viene sostituito di continuo da un altro programma.</source>
        <translation>La base de données «&#xa0;%1&#xa0;» est sans cesse remplacée par un autre programme.</translation>
    </message>
    <message>
        <source>Il database &quot;%1&quot; va ripristinato dopo un&apos;interruzione, ma non può essere scritto.</source>
        <translation>La base de données «&#xa0;%1&#xa0;» doit être rétablie après une interruption, mais ne peut pas être écrite.</translation>
    </message>
    <message>
        <source>Il database &quot;%1&quot; è stato sostituito o cancellato: la modifica non è stata fatta.</source>
        <translation>La base de données «&#xa0;%1&#xa0;» a été remplacée ou supprimée&#xa0;: la modification n&apos;a pas été faite.</translation>
    </message>
    <message>
        <source>la pagina %1 è fra quelle libere di una tabella a cui non appartiene</source>
        <translation>la page %1 est parmi les pages libres d&apos;une table à laquelle elle n&apos;appartient pas</translation>
    </message>
    <message>
        <source>una riga di &quot;%1&quot; non è leggibile</source>
        <translation>une ligne de «&#xa0;%1&#xa0;» est illisible</translation>
    </message>
    <message>
        <source>Il record è troppo grande per la tabella &quot;%1&quot; (%2 byte; al massimo %3).</source>
        <translation>L&apos;enregistrement est trop grand pour la table «&#xa0;%1&#xa0;» (%2 octets&#xa0;; au plus %3).</translation>
    </message>
    <message>
        <source>la pagina %1 non appartiene alla tabella &quot;%2&quot;</source>
        <translation>la page %1 n&apos;appartient pas à la table «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>la riga %1 della pagina %2 non dice dove è</source>
        <translation>la ligne %1 de la page %2 ne dit pas où elle est</translation>
    </message>
    <message>
        <source>la riga %1 della pagina %2 si è persa</source>
        <translation>la ligne %1 de la page %2 est perdue</translation>
    </message>
    <message>
        <source>una riga di &quot;%1&quot; è sparita</source>
        <translation>une ligne de «&#xa0;%1&#xa0;» a disparu</translation>
    </message>
    <message>
        <source>la pagina %1 è in uso ed è segnata come libera</source>
        <translation>la page %1 est utilisée et marquée comme libre</translation>
    </message>
    <message>
        <source>un indice gira in tondo</source>
        <translation>un index tourne en rond</translation>
    </message>
    <message>
        <source>La struttura della tabella &quot;%1&quot; è stata cambiata da un altro programma.</source>
        <translation>La structure de la table «&#xa0;%1&#xa0;» a été modifiée par un autre programme.</translation>
    </message>
    <message>
        <source>La tabella &quot;%1&quot; non ha una chiave primaria numerica.</source>
        <translation>La table «&#xa0;%1&#xa0;» n&apos;a pas de clé primaire numérique.</translation>
    </message>
    <message>
        <source>nell&apos;indice &quot;%1&quot; manca una riga</source>
        <translation>il manque une ligne dans l&apos;index «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Il numero dei valori non è quello dei campi della tabella &quot;%1&quot;.</source>
        <translation>Le nombre de valeurs n&apos;est pas celui des champs de la table «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>il campo &quot;%1&quot; è un contatore</source>
        <translation>le champ «&#xa0;%1&#xa0;» est un compteur</translation>
    </message>
    <message>
        <source>la mappa delle pagine %1/%2 non è leggibile</source>
        <translation>la carte des pages %1/%2 est illisible</translation>
    </message>
    <message>
        <source>la mappa delle pagine %1/%2 comincia oltre il file</source>
        <translation>la carte des pages %1/%2 commence au-delà du fichier</translation>
    </message>
    <message>
        <source>la pagina %1 non è una mappa</source>
        <translation>la page %1 n&apos;est pas une carte</translation>
    </message>
    <message>
        <source>Una mappa delle pagine del database non può crescere oltre.</source>
        <translation>Une carte des pages de la base de données ne peut plus grandir.</translation>
    </message>
    <message>
        <source>Il numero è troppo grande per il campo &quot;%1&quot;.</source>
        <translation>Le nombre est trop grand pour le champ «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Il campo &quot;%1&quot; è troppo piccolo per il testo (al massimo %2 caratteri).</source>
        <translation>Le champ «&#xa0;%1&#xa0;» est trop petit pour le texte (au plus %2 caractères).</translation>
    </message>
    <message>
        <source>Il testo del campo &quot;%1&quot; contiene caratteri che il database non può conservare.</source>
        <translation>Le texte du champ «&#xa0;%1&#xa0;» contient des caractères que la base de données ne peut pas conserver.</translation>
    </message>
    <message>
        <source>Il campo &quot;%1&quot; non può contenere %2 byte.</source>
        <translation>Le champ «&#xa0;%1&#xa0;» ne peut pas contenir %2 octets.</translation>
    </message>
    <message>
        <source>contiene un oggetto OLE</source>
        <translation>contient un objet OLE</translation>
    </message>
    <message>
        <source>è un testo di lunghezza fissa</source>
        <translation>est un texte de longueur fixe</translation>
    </message>
    <message>
        <source>è di un tipo sconosciuto (%1)</source>
        <translation>est d&apos;un type inconnu (%1)</translation>
    </message>
    <message>
        <source>Il campo &quot;%1&quot; %2: non può essere modificato.</source>
        <translation>Le champ «&#xa0;%1&#xa0;» %2&#xa0;: il ne peut pas être modifié.</translation>
    </message>
    <message>
        <source>l&apos;indice &quot;%1&quot; (%2) non può essere aggiornato, perché %3</source>
        <translation>l&apos;index «&#xa0;%1&#xa0;» (%2) ne peut pas être mis à jour, parce que %3</translation>
    </message>
    <message>
        <source>le sue voci non corrispondono alle righe della tabella</source>
        <translation>ses entrées ne correspondent pas aux lignes de la table</translation>
    </message>
    <message>
        <source>la forma delle sue chiavi decrescenti non è certa</source>
        <translation>la forme de ses clés décroissantes n&apos;est pas certaine</translation>
    </message>
    <message>
        <source>La tabella &quot;%1&quot; non può essere modificata: %2.</source>
        <translation>La table «&#xa0;%1&#xa0;» ne peut pas être modifiée&#xa0;: %2.</translation>
    </message>
    <message>
        <source>è una tabella di sistema</source>
        <translation>c&apos;est une table système</translation>
    </message>
    <message>
        <source>ha una relazione con un&apos;altra tabella</source>
        <translation>elle a une relation avec une autre table</translation>
    </message>
    <message>
        <source>il campo &quot;%1&quot; %2</source>
        <translation>le champ «&#xa0;%1&#xa0;» %2</translation>
    </message>
    <message>
        <source>il campo &quot;%1&quot; è un contatore di tipo GUID</source>
        <translation>le champ «&#xa0;%1&#xa0;» est un compteur de type GUID</translation>
    </message>
    <message>
        <source>Il campo &quot;%1&quot; deve contenere un valore.</source>
        <translation>Le champ «&#xa0;%1&#xa0;» doit contenir une valeur.</translation>
    </message>
    <message>
        <source>Il campo &quot;%1&quot; non può contenere un testo vuoto.</source>
        <translation>Le champ «&#xa0;%1&#xa0;» ne peut pas contenir un texte vide.</translation>
    </message>
    <message>
        <source>I campi dell&apos;indice &quot;%1&quot; (%2) devono contenere un valore.</source>
        <translation>Les champs de l&apos;index «&#xa0;%1&#xa0;» (%2) doivent contenir une valeur.</translation>
    </message>
    <message>
        <source>Il valore di &quot;%1&quot; esiste già e l&apos;indice &quot;%2&quot; non ammette duplicati.</source>
        <translation>La valeur de «&#xa0;%1&#xa0;» existe déjà et l&apos;index «&#xa0;%2&#xa0;» n&apos;admet pas de doublons.</translation>
    </message>
</context>
</TS>
