// The accesses to registers of the camera, the newest first.

import { byId, later, make, press, setText } from './dom.js';

const kept = 2000;
const most = 300; // rows in the table
const period = 150; // milliseconds between two changes of the table

export class Trace {
	#accesses = []; // the newest last
	#fresh = 0;     // of those, not in the table
	#left = 0;
	#paused = false;
	#told;

	/** @param told called when it is paused or goes on */
	constructor(link, told) {
		this.#told = told;
		link.on('trace', ({ accesses, left }) => {
			this.#left += left ?? 0;
			this.#accesses.push(...accesses);
			this.#fresh += accesses.length;
			this.#accesses.splice(0, this.#accesses.length - kept);
		});
		byId('trace-pause').onclick = () => {
			this.#paused = press(byId('trace-pause'));
			this.#told();
		};
		byId('trace-clear').onclick = () => {
			this.#accesses = [];
			this.#left = 0;
			this.#refill();
		};
		byId('trace-filter').oninput = later(period, () => this.#refill());
		setInterval(() => this.#show(), period);
	}

	wanted() {
		return !this.#paused && !byId('trace').hidden;
	}

	#show() {
		if (this.#fresh === 0 || byId('trace').hidden) {
			return;
		}
		const fresh = this.#accesses.slice(-Math.min(this.#fresh, most)).filter((access) => this.#matches(access));
		this.#fresh = 0;
		const table = byId('accesses');
		table.prepend(...fresh.reverse().map(toRow));
		while (table.rows.length > most) {
			table.lastChild.remove();
		}
		setText(byId('trace-left'), this.#left > 0 ? `${this.#left} accesses were left out: there were too many` : '');
	}

	#refill() {
		byId('accesses').replaceChildren();
		this.#fresh = 0;
		const found = this.#accesses.filter((access) => this.#matches(access)).slice(-most);
		byId('accesses').append(...found.reverse().map(toRow));
	}

	#matches({ name, operation, address, data, call }) {
		const words = byId('trace-filter').value.toLowerCase().split(/\s+/).filter(Boolean);
		const text = `${name} ${operation} ${address} ${data} ${call}`.toLowerCase();
		return words.every((word) => text.includes(word));
	}
}

function toRow({ time, write, operation, address, data, failed, microseconds, name, call }) {
	const where = typeof address === 'number' ? `0x${address.toString(16).toUpperCase().padStart(8, '0')}` : address;
	return make('tr', { class: failed ? 'failed' : write ? 'write' : '' },
		make('td', { class: 'number' }, time.toFixed(3)), make('td', { class: 'number' }, microseconds.toFixed(0)),
		make('td', {}, name ?? ''), make('td', {}, failed ? `${operation} failed` : operation), make('td', {}, where),
		make('td', { class: 'data', title: data }, data), make('td', {}, call ?? ''));
}
