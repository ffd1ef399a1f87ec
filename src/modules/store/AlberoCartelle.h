// SPDX-License-Identifier: GPL-3.0-or-later
// The tree of groups, read from the database at one moment.
#pragma once

#include <cstdint>
#include <map>
#include <QString>
#include <QStringList>
#include <set>
#include <vector>

/// A row of the table of groups.
struct Cartella {
    std::int32_t id = 0;
    bool senzaPadre = false;  ///< id_up is Null
    std::int32_t padre = 0;   ///< id_up; 0 for a group of the top level
    QString nome;
};

/// All groups of the database, as they were at one moment: which of them are reachable from the root, in
/// which order the tree shows them, and which are lost. A group is lost when its parent is not there or is
/// lost, or when it is its own descendant.
class AlberoCartelle {
  public:
    /// Reads those of the current database. Unguarded.
    static AlberoCartelle Leggi();
    /// `cartelle` in the order in which the tree lists siblings.
    explicit AlberoCartelle(std::vector<Cartella> cartelle);

    /// The root (0) and the groups that it reaches, as the open tree shows them from top to bottom.
    const std::vector<std::int32_t>& Ordine() const { return ordine; }
    /// The root is reached.
    bool Raggiunta(std::int32_t id) const { return raggiunte.contains(id); }
    /// "Database Mailing" for the root; "" for a group that is not there.
    QString Nome(std::int32_t id) const;
    /// Keys of the nodes from the root to the group; empty for one that is not reached.
    QStringList Chiavi(std::int32_t id) const;
    /// "Soci / Nuovi"; the name alone for the root and for a lost group, "" for one that is not there.
    QString Percorso(std::int32_t id) const;

    std::vector<Cartella> Perdute() const;
    /// The lost groups which, put under the root, take all other lost ones along: those without a parent, and
    /// of each cycle the one with the lowest number.
    std::vector<std::int32_t> CapiDellePerdute() const;

  private:
    const Cartella* Trova(std::int32_t id) const;
    void Raggiungi(std::int32_t inizio, std::set<std::int32_t>& insieme,
                   std::vector<std::int32_t>* elenco) const;

    std::vector<Cartella> cartelle;
    std::map<std::int32_t, std::size_t> posti;  ///< by id, in `cartelle`
    std::map<std::int32_t, std::vector<std::int32_t>> figlie;
    std::vector<std::int32_t> ordine;
    std::set<std::int32_t> raggiunte;
};
