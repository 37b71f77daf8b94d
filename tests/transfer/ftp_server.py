#!/usr/bin/env python3
"""Serves one folder over FTP on a free port of loopback; prints the port, and ends when its standard input does."""
import logging
import os
import sys
import threading
import warnings

warnings.simplefilter("ignore", DeprecationWarning)
from pyftpdlib.authorizers import DummyAuthorizer  # noqa: E402
from pyftpdlib.handlers import FTPHandler  # noqa: E402
from pyftpdlib.servers import FTPServer  # noqa: E402


class BreakingHandler(FTPHandler):
    """Breaks the line in the middle of a file that is called "broken.bin"."""

    auth_failed_timeout = 0

    def ftp_RETR(self, file):
        answer = super().ftp_RETR(file)
        if os.path.basename(file) == "broken.bin" and self.data_channel:
            self.data_channel.close()
        return answer


def main():
    logging.disable(logging.CRITICAL)
    authorizer = DummyAuthorizer()
    authorizer.add_anonymous(sys.argv[1])
    authorizer.add_user("user", "secret", sys.argv[1], perm="elradfmwMT")
    BreakingHandler.authorizer = authorizer
    server = FTPServer(("127.0.0.1", 0), BreakingHandler)
    print(server.address[1], flush=True)

    def end_with_input():
        sys.stdin.read()
        os._exit(0)

    threading.Thread(target=end_with_input, daemon=True).start()
    server.serve_forever()


if __name__ == "__main__":
    main()
