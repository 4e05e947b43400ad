// The connection to the program: requests, and events over a WebSocket that comes back by itself.

const tokenKey = 'token';
const firstPause = 250; // milliseconds, doubled with each attempt
const longestPause = 8000;

/** Takes the token out of the address bar. A reload finds it in the storage of this tab. */
function takeToken() {
	const given = /^#token=(\w+)$/.exec(location.hash);
	if (given) {
		sessionStorage.setItem(tokenKey, given[1]);
		history.replaceState(null, '', location.pathname);
	}
	return sessionStorage.getItem(tokenKey) ?? '';
}

export class Link {
	#token = takeToken();
	#socket = null;
	#pause = firstPause;
	#handlers = new Map();
	#greeted = false; // the program has accepted the token
	#lastText = null;

	/** Calls a handler for each message of a type; "binary", "open" and "closed" are types, too. */
	on(type, handler) {
		this.#handlers.set(type, [...this.#handlers.get(type) ?? [], handler]);
	}

	#tell(type, message) {
		for (const handler of this.#handlers.get(type) ?? []) {
			handler(message);
		}
	}

	/** @return the status, 0 without an answer, and the answer: JSON, or a blob with "blob" */
	async request(method, path, { body, as = 'json' } = {}) {
		try {
			const answer = await fetch(path, {
				method, body: body === undefined || typeof body === 'string' ? body : JSON.stringify(body),
				headers: { Authorization: `Bearer ${this.#token}` },
			});
			return { status: answer.status, body: await (answer.ok && as === 'blob' ? answer.blob() : answer.json()) };
		} catch {
			return { status: 0, body: { message: 'The program does not answer.' } };
		}
	}

	connect() {
		if (this.#token === '') {
			this.#tell('closed', 'This address has no token. Open the one that the program printed.');
			return;
		}
		const socket = new WebSocket(`ws://${location.host}/api/events`);
		socket.binaryType = 'blob';
		socket.onopen = () => socket.send(JSON.stringify({ token: this.#token }));
		socket.onmessage = ({ data }) => this.#received(data);
		socket.onclose = () => this.#closed();
		this.#socket = socket;
		this.#greeted = false;
	}

	#received(data) {
		if (!this.#greeted) {
			this.#greeted = true;
			this.#pause = firstPause;
			this.#lastText = null;
			this.#tell('open');
		}
		if (typeof data === 'string') {
			const message = JSON.parse(data);
			this.#tell(message.type, message);
		} else {
			this.#tell('binary', data);
		}
	}

	async #closed() {
		const greeted = this.#greeted;
		this.#greeted = false;
		const { status } = greeted ? { status: 0 } : await this.request('GET', '/api/camera');
		this.#tell('closed', status === 0 ? 'The program has ended, or does not answer. Trying again.'
			: status === 401 ? 'The program was started anew. Open the address that it printed.'
				: 'The program serves no more tabs: close others. Trying again.');
		setTimeout(() => this.connect(), this.#pause);
		this.#pause = Math.min(2 * this.#pause, longestPause);
	}

	/** Does nothing without a connection: what the page shows is sent again after the next one. */
	send(message) {
		if (this.#greeted && this.#socket.readyState === WebSocket.OPEN) {
			this.#socket.send(JSON.stringify(message));
		}
	}

	/** Sends what differs from the last time. */
	sendView(view) {
		const text = JSON.stringify(view);
		if (text !== this.#lastText && this.#greeted) {
			this.#lastText = text;
			this.#socket.send(text);
		}
	}
}
