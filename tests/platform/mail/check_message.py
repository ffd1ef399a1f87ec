# SPDX-License-Identifier: GPL-3.0-or-later
"""Reads messages with Python's own e-mail parser under its strict policy and prints what it understood, as JSON.

The one argument names a file with the messages one after the other, each after a line with its length.
"""
import email
import email.header
import email.policy
import email.utils
import json
import sys

POLICY = email.policy.SMTP.clone(raise_on_defect=True)


def header_defects(part):
    return [str(defect) for value in part.values() for defect in value.defects]


def phrase_of(header):
    """The name before an address. Newer builds of Python refuse a phrase before an address literal unless `strict`
    is off; older ones do not have that argument."""
    try:
        return email.utils.parseaddr(header, strict=False)[0]
    except TypeError:
        return email.utils.parseaddr(header)[0]


def one_address(message, raw_message, name):
    """The parser of the policy puts a blank between two encoded words of a name; the older one reads them right."""
    phrase = phrase_of(raw_message[name].replace("\r\n", ""))
    addresses = message[name].addresses
    return {
        "count": len(addresses),
        "name": str(email.header.make_header(email.header.decode_header(phrase))),
        "address": addresses[0].addr_spec,
    }


def leaf(part):
    content = part.get_payload(decode=True)
    charset = part.get_content_charset()
    is_text = part.get_content_maintype() == "text"
    return {
        "type": part.get_content_type(),
        "charset": charset,
        "encoding": part["Content-Transfer-Encoding"],
        "disposition": part.get_content_disposition(),
        "filename": part.get_filename(),
        "plain_name": part["Content-Type"].params.get("name"),
        "content_id": part["Content-ID"],
        "text": content.decode(charset) if is_text and charset else None,
        "hex": None if is_text and charset else content.hex(),
    }


def tree(part):
    if part.is_multipart():
        return [part.get_content_type()] + [tree(child) for child in part.iter_parts()]
    return part.get_content_type()


def understood(data):
    message = email.message_from_bytes(data, policy=POLICY)
    raw_message = email.message_from_bytes(data, policy=email.policy.compat32)
    parts = list(message.walk())
    return {
        "defects": [str(d) for part in parts for d in part.defects] + [d for part in parts for d in header_defects(part)],
        "from": one_address(message, raw_message, "From"),
        "to": one_address(message, raw_message, "To"),
        "subject": str(message["Subject"]),
        "date": message["Date"].datetime.isoformat(),
        "message_id": str(message["Message-ID"]),
        "unsubscribe": str(message["List-Unsubscribe"]),
        "tree": tree(message),
        "leaves": [leaf(part) for part in parts if not part.is_multipart()],
        "names": sorted(name.lower() for name in message.keys()),
    }


def main():
    results = []
    with open(sys.argv[1], "rb") as source:
        while length := source.readline():
            data = source.read(int(length))
            try:
                results.append(understood(data))
            except Exception as failure:  # a defect: the test shows it
                results.append({"failure": repr(failure)})
    json.dump(results, sys.stdout)


main()
