"""A mail server on a free port of this machine: prints the port, keeps messages and their recipients in the folder
given, and ends with its standard input."""
import asyncio
import os
import sys

from aiosmtpd.smtp import SMTP


class Keeper:
    def __init__(self, folder):
        self.folder = folder
        self.count = 0

    async def handle_DATA(self, server, session, envelope):
        self.count += 1
        name = os.path.join(self.folder, "%d" % self.count)
        with open(name + ".eml", "wb") as file:
            file.write(envelope.original_content)
        with open(name + ".to", "w") as file:
            file.write(" ".join(envelope.rcpt_tos))
        return "250 OK"


async def serve(folder):
    loop = asyncio.get_running_loop()
    keeper = Keeper(folder)
    server = await loop.create_server(lambda: SMTP(keeper, hostname="localhost"), "127.0.0.1", 0)
    print(server.sockets[0].getsockname()[1], flush=True)
    await loop.run_in_executor(None, sys.stdin.read)
    os._exit(0)


asyncio.run(serve(sys.argv[1]))
