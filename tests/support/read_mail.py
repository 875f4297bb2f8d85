"""Prints the messages in the files given as JSON, as an independent parser sees them."""
import email
import email.policy
import json
import sys


def text_of(part):
    return part.get_payload(decode=True).decode("utf-8")


def read(path):
    with open(path, "rb") as file:
        message = email.message_from_binary_file(file, policy=email.policy.default)
    body = message.get_body(("plain",))
    return {
        "headers": [[name, str(value)] for name, value in message.items()],
        "recipients": [person.addr_spec for person in message["To"].addresses],
        "sender": [[person.display_name, person.addr_spec] for person in message["From"].addresses]
        if message["From"]
        else [],
        "body": text_of(body),
        "attachments": [[part.get_filename(), part.get_payload(decode=True).hex()] for part in
                        message.iter_attachments()] if message.is_multipart() else [],
        "defects": [repr(defect) for defect in message.defects],
    }


print(json.dumps([read(path) for path in sys.argv[1:]]))
