"""A server on loopback for the benchmarks: a process of its own that answers every request at once and keeps connections."""
import asyncio
import contextlib
import multiprocessing


def reply(kind, body):
    return b"HTTP/1.1 200 OK\r\nContent-Type: %s\r\nContent-Length: %d\r\n\r\n" % (kind, len(body)) + body


def run(port, answer):
    class Server(asyncio.Protocol):
        unread = b""

        def connection_made(self, transport):
            self.transport = transport

        def data_received(self, data):
            self.unread += data
            while b"\r\n\r\n" in self.unread:
                head, self.unread = self.unread.split(b"\r\n\r\n", 1)
                self.transport.write(answer(head))

    async def serve():
        server = await asyncio.get_running_loop().create_server(Server, "127.0.0.1", 0)
        port.send(server.sockets[0].getsockname()[1])
        await server.serve_forever()

    asyncio.run(serve())


@contextlib.contextmanager
def serving(answer):
    """Gives the port on which `answer(head)` answers, as reply() makes it, whoever asks."""
    ours, theirs = multiprocessing.Pipe()
    server = multiprocessing.Process(target=run, args=(theirs, answer), daemon=True)
    server.start()
    try:
        yield ours.recv()
    finally:
        server.terminate()
