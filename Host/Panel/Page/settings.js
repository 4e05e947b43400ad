// Settings as files: save, compare, restore.

import { ask, byId, download, make, setText } from './dom.js';
import { print } from './values.js';

const failures = ['clamped', 'refused', 'left off'];
const questions = {
	outputs: ['Include outputs?', 'I/O lines, motors and lenses are set too. What is connected may move.', 'Include them'],
	network: ['Include the network configuration?',
		'Addresses and packet sizes are set too. The camera may no longer be reached.', 'Include it'],
};

function changed({ result }) {
	return !['unchanged', 'skipped'].includes(result);
}

export class Settings {
	#link;
	#buttons = ['compare', 'plan'].map(byId);
	#live = false; // results come while a restore runs

	constructor(link) {
		this.#link = link;
		link.on('restore', ({ result }) => this.#live && this.#addResult(result));
		byId('save').onclick = () => this.#save();
		byId('compare').onclick = () => this.#compare();
		byId('plan').onclick = () => this.#plan();
		byId('restore').onclick = () => this.#restore();
		byId('file').onchange = () => {
			this.#buttons.forEach((button) => {
				button.disabled = byId('file').files.length === 0;
			});
			this.#show('', []);
		};
		for (const [id, question] of Object.entries(questions)) {
			byId(id).onchange = async () => {
				byId('restore').hidden = true; // another plan
				byId(id).checked &&= await ask(...question);
			};
		}
	}

	#say(message) {
		setText(byId('settings-message'), message);
		byId('restore').hidden = true;
	}

	#show(message, columns) {
		this.#say(message);
		this.#live = false;
		byId('results').replaceChildren(...columns.length === 0 ? [] : [
			make('thead', {}, make('tr', {}, ...columns.map((column) => make('th', {}, column)))), make('tbody')]);
	}

	#addRow(kind, ...cells) {
		byId('results').tBodies[0].append(
			make('tr', { class: kind }, ...cells.map((cell) => make('td', {}, cell))));
	}

	async #save() {
		const { status, body } = await this.#link.request('GET', '/api/settings');
		if (status !== 200) {
			this.#say(body.message);
			return;
		}
		const name = `${body.model}-${body.serialnumber || 'settings'}.json`.replace(/[^\w.-]+/g, '-');
		download(new Blob([JSON.stringify(body, null, 2), '\n'], { type: 'application/json' }), name);
		this.#show(`${Object.keys(body.values ?? {}).length} values saved as ${name}.`, []);
	}

	/** Posts the chosen file. @return a list, or null after a message */
	async #postFile(path) {
		const [file] = byId('file').files;
		const { status, body } = await this.#link.request('POST', path, { body: await file.text() });
		if (status !== 200) {
			this.#say(body.message);
			return null;
		}
		return body;
	}

	async #compare() {
		const differences = await this.#postFile('/api/settings/compare');
		if (differences) {
			const equal = differences.length === 0;
			this.#show(equal ? 'The file and the camera are equal.' : `${differences.length} differ.`,
				equal ? [] : ['Function', 'File', 'Camera']);
			for (const { name, first, second } of differences) {
				this.#addRow('', name, print(first), print(second));
			}
		}
	}

	get #options() {
		return ['outputs', 'network'].filter((id) => byId(id).checked);
	}

	#post(how) {
		return this.#postFile(`/api/settings/restore?${[...how, ...this.#options].join('&')}`);
	}

	async #plan() {
		const results = await this.#post(['dry-run']);
		if (results) {
			const changes = results.filter(changed);
			this.#showResults(`${changes.length} of ${results.length} functions would be set.`, results);
			byId('restore').hidden = changes.length === 0;
		}
	}

	async #restore() {
		const also = this.#options.length === 0 ? '' : ` Included: ${this.#options.join(' and ')}.`;
		if (!await ask('Restore these settings?', `The camera is set to the values of the file.${also}`, 'Restore')) {
			return;
		}
		this.#showResults('Restoring …', []);
		this.#live = true; // also if the answer takes too long
		const results = await this.#post([]);
		if (results) {
			const count = (...kinds) => results.filter(({ result }) => kinds.includes(result)).length;
			this.#showResults(`${count('ok', 'rounded')} functions set, ${count('unchanged')} unchanged, ${
				count('skipped')} skipped, ${count(...failures)} not restored.`, results);
		}
	}

	/** What was changed comes first. */
	#showResults(message, results) {
		this.#show(message, ['Function', 'Result', 'Before', 'File', 'Camera', 'Reason']);
		results.toSorted((a, b) => changed(b) - changed(a)).forEach((result) => this.#addResult(result));
	}

	#addResult(result) {
		const { name, before, saved, value, reason } = result;
		this.#addRow(failures.includes(result.result) ? 'failed' : changed(result) ? '' : 'quiet',
			name, result.result, print(before), print(saved), print(value), reason ?? '');
	}
}
