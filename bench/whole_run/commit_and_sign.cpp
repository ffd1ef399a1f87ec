// SPDX-License-Identifier: GPL-3.0-or-later
// commit_and_sign <database> <count> <key.pem>: as many commits of one changed row to a new SQLite database
// with a DELETE journal, and as many signatures with an RSA key that is kept. Prints one line of JSON.
#include <openssl/evp.h>
#include <openssl/pem.h>
#include <sqlite3.h>
#include <sys/resource.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

[[noreturn]] void fail(const char* what) {
    std::fprintf(stderr, "%s\n", what);
    std::exit(1);
}

void execute(sqlite3* database, const std::string& statement) {
    if (sqlite3_exec(database, statement.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
        fail(sqlite3_errmsg(database));
}

double seconds() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

double commits(const char* path, int count) {
    sqlite3* database = nullptr;
    std::remove(path);
    if (sqlite3_open(path, &database) != SQLITE_OK) fail("no database");
    execute(database,
            "PRAGMA journal_mode = DELETE; PRAGMA synchronous = FULL; BEGIN;"
            "CREATE TABLE t (id INTEGER PRIMARY KEY, sel INTEGER, email TEXT, nom TEXT);");
    for (int i = 0; i < count; ++i)
        execute(database, "INSERT INTO t VALUES (" + std::to_string(i) + ", 1, 'rossi" + std::to_string(i) +
                              "@cliente.example', 'Rossi')");
    execute(database, "COMMIT");
    const double start = seconds();
    for (int i = 0; i < count; ++i)
        execute(database, "UPDATE t SET sel = 0 WHERE id = " + std::to_string(i));
    const double taken = seconds() - start;
    sqlite3_close(database);
    return taken;
}

double signatures(const char* path, int count) {
    std::FILE* const file = std::fopen(path, "r");
    EVP_PKEY* const key = file ? PEM_read_PrivateKey(file, nullptr, nullptr, nullptr) : nullptr;
    EVP_PKEY_CTX* const context = key ? EVP_PKEY_CTX_new(key, nullptr) : nullptr;
    if (!context || EVP_PKEY_sign_init(context) != 1 ||
        EVP_PKEY_CTX_set_signature_md(context, EVP_sha256()) != 1)
        fail("no key");
    std::vector<unsigned char> digest(32), signature(std::size_t(EVP_PKEY_get_size(key)));
    const double start = seconds();
    for (int i = 0; i < count; ++i) {
        std::size_t size = signature.size();
        digest[0] = static_cast<unsigned char>(i);
        if (EVP_PKEY_sign(context, signature.data(), &size, digest.data(), digest.size()) != 1)
            fail("no signature");
    }
    return seconds() - start;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 4) fail("commit_and_sign <database> <count> <key.pem>");
    const int count = std::atoi(argv[2]);
    const double committed = commits(argv[1], count);
    std::printf("{\"commits\": %.6f, \"signatures\": %.6f}\n", committed, signatures(argv[3], count));
}
