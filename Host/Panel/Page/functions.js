// The functions of the camera as the page knows them, and their setting.

import { announce, ask } from './dom.js';
import { baseOf, isAction } from './values.js';

const noteTime = 10000; // milliseconds that a note stays though the value changes

const encoded = (name) => `/api/functions/${encodeURIComponent(name)}`;

export class Functions {
	#link;
	#handlers = new Set();
	#waiting = new Map(); // what is being set, by name
	#all = new Map();     // descriptions, by name
	#notes = new Map();   // what the camera made of the last value, by name

	constructor(link) {
		this.#link = link;
		link.on('values', ({ values }) => {
			for (const [name, value] of Object.entries(values ?? {})) {
				this.#setValue(name, value);
			}
		});
		link.on('function', ({ function: changed }) => {
			this.#all.set(changed.name, changed);
			this.#changed(changed.name);
		});
	}

	/** Calls a handler with the name of each function of which anything changed. */
	onChange(handler) {
		this.#handlers.add(handler);
	}

	get(name) {
		return this.#all.get(name);
	}
	value(name) {
		return this.#all.get(name)?.value;
	}
	note(name) {
		return this.#notes.get(name);
	}
	isBeingSet(name) {
		return this.#waiting.has(name);
	}

	/** @return whether all were read */
	async load() {
		const { status, body } = await this.#link.request('GET', '/api/functions');
		for (const description of status === 200 ? body : []) {
			this.#all.set(description.name, description);
			this.#changed(description.name);
		}
		return status === 200;
	}

	/** Reads an instance that is not in the list, since there are many of them. */
	async loadInstance(name) {
		const { status, body } = await this.#link.request('GET', encoded(name));
		if (status === 200) {
			this.#all.set(name, { ...body, name });
		}
		this.#changed(name);
	}

	/** The functions in order, with their instances: name, topic, names of the instances. */
	families() {
		const families = new Map();
		for (const { name, topic, count = 1 } of this.#all.values()) {
			const base = baseOf(name);
			const family = families.get(base) ?? { name: base, topic: topic ?? 'other', count: 1, names: [] };
			family.count = Math.max(family.count, count);
			family.names.push(name);
			families.set(base, family);
		}
		for (const family of families.values()) {
			family.count = Math.max(family.count, family.names.length);
			if (family.count > 1) {
				family.names = Array.from({ length: family.count }, (_, index) => `${family.name}.${index}`);
			}
		}
		return [...families.values()];
	}

	/**
	 * Sets a function; one request at a time for each, the newest value wins.
	 * @param value undefined for a function without a value
	 * @return when nothing is left to be set
	 */
	set(name, value) {
		let waiting = this.#waiting.get(name);
		if (waiting) {
			waiting.newest = { value };
		} else {
			waiting = { newest: { value } };
			this.#waiting.set(name, waiting);
			waiting.done = this.#drain(name, waiting);
		}
		return waiting.done;
	}

	async #drain(name, waiting) {
		while (waiting.newest) {
			const { value } = waiting.newest;
			waiting.newest = null;
			await this.#put(name, value, waiting);
		}
		this.#waiting.delete(name);
		this.#changed(name);
	}

	async #put(name, value, waiting) {
		const body = value === undefined ? {} : { value };
		let answer = await this.#link.request('PUT', encoded(name), { body });
		if (answer.status === 428) {
			waiting.newest = null;
			const reason = answer.body.message.replace(/; "confirm".*/, '.'); // that is for scripts
			if (!await ask(`Set ${name}?`, reason, 'Set it')) {
				return;
			}
			answer = await this.#link.request('PUT', encoded(name), { body: { ...body, confirm: true } });
		}
		this.#answered(name, answer);
	}

	/** What the camera made of a value becomes a note, such as that it was clamped. */
	#answered(name, { status, body }) {
		const description = this.#all.get(name);
		if ((status === 200 || status === 422) && description) {
			description.value = body.value;
		}
		const kind = status === 409 ? '' // another value is on its way
			: status !== 200 ? 'refused' : body.message ? 'rounded' : description && isAction(description) ? 'done' : '';
		this.#notes.delete(name);
		if (kind) {
			const text = (body.message || 'done').replace(`${name}: `, '');
			this.#notes.set(name, { kind, text, time: performance.now() });
			announce(`${name}: ${text}`);
		}
		this.#changed(name);
	}

	#setValue(name, value) {
		const description = this.#all.get(name);
		if (description) {
			description.value = value;
			const note = this.#notes.get(name);
			if (note && performance.now() - note.time > noteTime) {
				this.#notes.delete(name); // it says what the camera held then
			}
			this.#changed(name);
		}
	}

	#changed(name) {
		for (const handler of this.#handlers) {
			handler(name);
		}
	}
}
